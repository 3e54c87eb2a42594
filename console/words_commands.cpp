#include "console/command.hpp"
#include "dictionary/field_cipher.hpp"
#include "opponent/board_snapshot.hpp"
#include "platform/ascii.hpp"
#include "settings/window_colours.hpp"

namespace lexigrove
{

namespace
{

Lines wordCount(CommandContext& context)
{
    return {std::to_string(context.flow.dictionary.words.count())};
}

int entryArgument(Arguments& arguments)
{
    return arguments.number("entry", 0, WordList::capacity);
}

Lines word(CommandContext& context, int entry)
{
    return {std::string(context.flow.dictionary.words.entry(entry))};
}

/// The empty word can be looked for: it is entry 0.
Lines findWord(CommandContext& context, const std::string& sought)
{
    return {std::to_string(context.flow.dictionary.words.findWord(sought))};
}

Lines traceWord(CommandContext& context, const std::string& sought)
{
    GameFlow& flow = context.flow;
    const TracedWord traced = flow.search.traceWord(snapshotOf(flow.game.board), sought);
    Lines lines{std::to_string(traced.matchedLength)};
    lines.insert(lines.end(), traced.items.begin(), traced.items.end());
    return lines;
}

Lines sweep(CommandContext& context)
{
    GameFlow& flow = context.flow;
    const CandidateList& found = flow.search.sweep(snapshotOf(flow.game.board), flow.dictionary.words);
    Lines lines{std::to_string(found.count()) + " " + std::to_string(found.bestScorePosition()) + " " +
                std::to_string(found.bestLengthPosition())};
    for (int position = 1; position <= found.count(); ++position)
        lines.push_back(found.item(position));
    return lines;
}

Lines computerTurn(CommandContext& context)
{
    GameFlow& flow = context.flow;
    flow.asInput([&] {
        flow.letterSwap.cancel();
        flow.computerTurn.take();
    });
    return {};
}

/// An operation of the maintenance window on a text, as if the window had been opened with it.
template <void (DictionaryMaintenance::*operation)()>
Lines maintain(CommandContext& context, const std::string& text)
{
    DictionaryMaintenance& maintenance = context.flow.maintenance;
    constexpr const char* anyWord = "A"; // opening asks for one, while the text to edit may be empty
    if (!maintenance.open(anyWord, context.status))
        throw CommandError(context.status.Label1);
    maintenance.word = text;
    context.flow.asInput([&] {
        maintenance.activate();
        (maintenance.*operation)();
    });
    return {};
}

Lines showDictionary(CommandContext& context)
{
    maintain<&DictionaryMaintenance::showDictionary>(context, "");
    return {std::to_string(context.flow.maintenance.List1.ListCount())};
}

Lines exportWords(CommandContext& context)
{
    context.flow.exportWords();
    return {};
}

struct CipherArguments {
    std::string key;
    std::string text;
};

CipherArguments cipherArguments(Arguments& arguments)
{
    std::string key = arguments.required("key");
    return {std::move(key), arguments.rest()};
}

Lines encipherText(CommandContext& /*context*/, const CipherArguments& cipher)
{
    return {encipher(cipher.text, cipher.key)};
}

Lines decipherText(CommandContext& /*context*/, const CipherArguments& cipher)
{
    return {decipher(cipher.text, cipher.key)};
}

Lines scores(CommandContext& context)
{
    Lines lines;
    context.flow.asInput([&] { lines = context.flow.scoreFile.load(); });
    return {lines.rbegin(), lines.rend()};
}

/// The final score, or -1 only to show the list.
int codeArgument(Arguments& arguments)
{
    return arguments.number("code", -1, 1'000'000'000);
}

Lines topTen(CommandContext& context, int code)
{
    GameFlow& flow = context.flow;
    std::string answer;
    flow.asInput([&] { answer = showTopTen(flow.scoreForm, context.windows, std::to_string(code)); });
    return {answer};
}

Lines loadConfiguration(CommandContext& context)
{
    GameFlow& flow = context.flow;
    flow.asInput([&] {
        const WindowColours colours = deriveWindowColours(flow.scheme);
        flow.configuration.load(colours.ground, colours.card);
    });
    return {};
}

Lines saveConfiguration(CommandContext& context)
{
    context.flow.asInput([&] { context.flow.configuration.save(); });
    return {};
}

/// A name may hold blanks; those around it do not count.
std::string schemeArgument(Arguments& arguments)
{
    const std::string text = arguments.rest();
    return std::string(ascii::trimmed(text));
}

Lines loadScheme(CommandContext& context, const std::string& name)
{
    GameFlow& flow = context.flow;
    flow.asInput([&] {
        flow.scheme.load(name);
        flow.game.refreshLooks();
    });
    Lines lines{flow.scheme.currentName};
    for (std::size_t i = 0; i < ColourScheme::fileEntries; ++i)
        lines.push_back(std::to_string(flow.scheme.entry(i)));
    return lines;
}

} // namespace

std::vector<Command> wordsCommands()
{
    const auto sought = [](Arguments& arguments) { return arguments.next().value_or(""); };
    const auto traced = [](Arguments& arguments) { return arguments.required("word"); };
    return {
        command("word_count", Needs::Nothing, wordCount),
        command("word", Needs::Nothing, entryArgument, word),
        command("find", Needs::Nothing, sought, findWord),
        command("trace", Needs::Game, traced, traceWord),
        command("sweep", Needs::Game, sweep),
        command("computer_turn", Needs::Play, computerTurn),
        command("spell_check", Needs::Game, restArgument, maintain<&DictionaryMaintenance::spellCheck>),
        command("add_word", Needs::Game, restArgument, maintain<&DictionaryMaintenance::addWord>),
        command("remove_word", Needs::Game, restArgument, maintain<&DictionaryMaintenance::removeWord>),
        command("show_dictionary", Needs::Game, showDictionary),
        command("export", Needs::Play, exportWords),
        command("encipher", Needs::Nothing, cipherArguments, encipherText),
        command("decipher", Needs::Nothing, cipherArguments, decipherText),
        command("scores", Needs::Nothing, scores),
        command("top10", Needs::Nothing, codeArgument, topTen),
        command("load_config", Needs::Nothing, loadConfiguration),
        command("save_config", Needs::Nothing, saveConfiguration),
        command("load_scheme", Needs::Nothing, schemeArgument, loadScheme),
    };
}

} // namespace lexigrove
