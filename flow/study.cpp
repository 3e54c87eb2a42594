#include "flow/study.hpp"

#include "flow/game_parts.hpp"
#include "settings/window_colours.hpp"

namespace lexigrove
{

void Study::setDeveloperMode(bool on)
{
    flow_.input(When::Always, [=](GameParts& p) { p.game.state.developerMode = on; });
}

void Study::editTile(int tile, const std::string& letter, Colour maskcolor)
{
    flow_.input(When::InGame, [&](GameParts& p) {
        p.game.letterSwap.cancel();
        BoxControl& control = p.game.board.tile(tile);
        if (p.game.selection.contains(tile))
            p.game.selection.clear(); // the path keeps the letter as it was clicked
        control.Caption(letter);
        control.MaskColor(maskcolor);
        control.Visible(!letter.empty());
        p.game.countSpecialTiles();
        p.game.refreshLooks();
    });
}

void Study::editWaiting(int col, const std::string& letter)
{
    flow_.input(When::InGame, [&](GameParts& p) {
        p.game.letterSwap.cancel();
        p.game.supply.waitAtHome(col, letter);
        p.game.countSpecialTiles();
        p.game.refreshLooks();
    });
}

void Study::set(int GameState::*number, int value)
{
    flow_.input(When::InGame, [=](GameParts& p) { p.game.state.*number = value; });
}

void Study::setRedThreshold(int threshold)
{
    flow_.input(When::InGame, [=](GameParts& p) { p.dictionary.setRedThreshold(threshold); });
}

void Study::setTilesLeft(std::optional<int> count)
{
    flow_.input(When::InGame, [=](GameParts& p) {
        p.game.state.letterDraw = count ? LetterDraw::Going : LetterDraw::Ended;
        p.game.state.tilesLeft = count.value_or(p.game.state.tilesLeft);
    });
}

void Study::chooseOptions(const std::function<void(OptionsForm&)>& choose)
{
    flow_.input(When::Always, [&](GameParts& p) {
        choose(p.options);
        p.game.refreshLooks();
    });
}

void Study::loadScheme(const std::string& name)
{
    flow_.input(When::Always, [&](GameParts& p) {
        p.scheme.load(name);
        p.game.refreshLooks();
    });
}

void Study::loadConfiguration()
{
    flow_.input(When::Always, [](GameParts& p) {
        const WindowColours colours = deriveWindowColours(p.scheme);
        p.configuration.load(colours.background, colours.card);
    });
}

void Study::saveConfiguration()
{
    flow_.input(When::Always, [](GameParts& p) { p.configuration.save(); });
}

TracedWord Study::trace(std::string_view word)
{
    TracedWord traced;
    flow_.input(When::InGame, [&](GameParts& p) { traced = p.search.traceWord(snapshotOf(p.game.board), word); });
    return traced;
}

const CandidateList& Study::sweep()
{
    flow_.input(When::InGame, [](GameParts& p) { p.search.sweep(snapshotOf(p.game.board), p.dictionary.words); });
    return flow_.parts_->search.candidates();
}

void Study::computerTurn()
{
    flow_.input(When::InPlay, [](GameParts& p) {
        p.game.letterSwap.cancel();
        p.computerTurn.take();
    });
}

bool Study::maintain(Maintenance operation, const std::string& text)
{
    bool opened = false;
    flow_.input(When::InGame, [&](GameParts& p) {
        constexpr const char* anyWord = "A"; // opening requires one, but the text to edit may be empty
        opened = p.maintenance.open(anyWord, p.ports.status);
        if (!opened)
            return;
        p.maintenance.word = text;
        p.maintenance.activate();
        switch (operation) {
        case Maintenance::SpellCheck:
            return p.maintenance.spellCheck();
        case Maintenance::AddWord:
            return p.maintenance.addWord();
        case Maintenance::RemoveWord:
            return p.maintenance.removeWord();
        case Maintenance::ShowDictionary:
            return p.maintenance.showDictionary();
        }
    });
    return opened;
}

int Study::listedWords() const
{
    return flow_.parts_->maintenance.List1.ListCount();
}

std::vector<std::string> Study::scores()
{
    std::vector<std::string> lines;
    flow_.input(When::Always, [&](GameParts& p) { lines = p.scoreFile.load(); });
    return {lines.rbegin(), lines.rend()};
}

std::string Study::showTopTen(std::optional<int> score)
{
    std::string answer;
    flow_.input(When::Always, [&](GameParts& p) {
        lexigrove::showTopTen(p.scoreForm, p.ports.windows, score);
        answer = p.scoreForm.answerCode();
    });
    return answer;
}

} // namespace lexigrove
