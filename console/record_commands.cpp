#include "console/command.hpp"
#include "dictionary/dictionary.hpp"
#include "game/game_state.hpp"
#include "record/daily.hpp"
#include "record/past_games.hpp"

#include <cstdint>
#include <limits>
#include <optional>
#include <sstream>
#include <utility>

namespace lexigrove
{

namespace
{

const std::string& folderOf(const CommandContext& context)
{
    return context.flow.view().dictionary.prefix();
}

Lines printGames(CommandContext& context)
{
    const RecordFolder::Contents contents = RecordFolder(folderOf(context)).list();
    Lines lines;
    for (const NamedRecord& game : contents.records) {
        std::string line = std::to_string(lines.size() + 1);
        for (int column = 0; column < PastGamesForm::columnCount; ++column)
            line += '\t' + PastGamesForm::text(pastGameOf(game), static_cast<PastGamesForm::Column>(column));
        lines.push_back(line);
    }
    if (contents.damaged > 0)
        lines.push_back("damaged\t" + std::to_string(contents.damaged));
    return lines;
}

struct ReviewPlace {
    int game = 0;            ///< as `games` counts them
    std::optional<int> turn; ///< nothing for the whole game
};

int gameArgument(Arguments& arguments)
{
    return arguments.number("game", 1, static_cast<int>(RecordFolder::most));
}

ReviewPlace reviewPlace(Arguments& arguments)
{
    ReviewPlace place;
    place.game = gameArgument(arguments);
    if (const auto typed = arguments.next())
        place.turn = numberIn("turn", *typed, 1, std::numeric_limits<std::int16_t>::max());
    return place;
}

Lines gameLines(const Review& review)
{
    Lines lines;
    for (const ReviewList list : {ReviewList::Own, ReviewList::LevelThree}) {
        lines.push_back(listText(list, review.record().start.level) + ": " + summaryText(review, list));
        for (const int turn : review.mostLeftBehind(list))
            lines.push_back(leftBehindText(rowOf(review, list, turn)));
        if (const std::string notice = noticeText(review, list); !notice.empty())
            lines.push_back(notice);
        if (review.record().start.level == 3)
            break;
    }
    if (const std::string rarest = rarestText(review); !rarest.empty())
        lines.push_back(rarest);
    return lines;
}

std::string wordLine(const std::string& what, const FoundWord& word)
{
    std::string line = what + " " + word.word + " " + std::to_string(word.score);
    for (const int tile : word.path)
        line += " " + std::to_string(tile);
    return line;
}

Lines turnLines(const Review& review, int number)
{
    const Turn& turn = review.turn(number);
    Lines lines{"before " + textOf(turn.before),
                wordLine(turn.maker == Maker::Player ? "you" : "computer", {turn.word, turn.path, turn.score})};
    for (const ReviewList list : {ReviewList::Own, ReviewList::LevelThree}) {
        const WordsThere& there = review.there(list, number);
        lines.push_back(listText(list, review.record().start.level) + ": " + thereText(there));
        if (there.count > 0) {
            lines.push_back(wordLine("best", there.best));
            lines.push_back(wordLine("longest", there.longest));
        }
        if (review.record().start.level == 3)
            break;
    }
    return lines;
}

/// Game 1 is the newest.
GameRecord gameAt(CommandContext& context, int number)
{
    RecordFolder::Contents contents = RecordFolder(folderOf(context)).list();
    if (number > static_cast<int>(contents.records.size()))
        throw CommandError("no such game: " + std::to_string(number));
    return std::move(contents.records[static_cast<std::size_t>(number) - 1].record);
}

Lines summary(CommandContext& context, int number)
{
    const GameRecord game = gameAt(context, number);
    if (game.kind != GameKind::Daily)
        throw CommandError("not a game on the board of a day: " + std::to_string(number));
    Lines lines;
    std::istringstream text(dailySummary(game));
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

Lines reviewGame(CommandContext& context, const ReviewPlace& place)
{
    LevelLists lists(folderOf(context));
    const Review review(gameAt(context, place.game), lists);
    if (!place.turn)
        return gameLines(review);
    if (*place.turn > review.turnCount())
        throw CommandError("no such turn: " + std::to_string(*place.turn));
    return turnLines(review, *place.turn);
}

Lines shareBoard(CommandContext& context)
{
    return {context.flow.view().state.start};
}

Lines playShared(CommandContext& context, const std::string& text)
{
    context.flow.playShared(text);
    return {};
}

/// The day whose board is printed; nothing to play today's.
std::optional<Day> dayArgument(Arguments& arguments)
{
    const auto typed = arguments.next();
    if (!typed)
        return std::nullopt;
    const auto day = dayOf(*typed);
    if (!day)
        throw CommandError("date must be a day like 2026-11-23: " + *typed);
    return day;
}

Lines daily(CommandContext& context, const std::optional<Day>& day)
{
    if (day)
        return {textOf(boardOfTheDay(*day, context.flow.view().dictionary.level()))};
    if (!context.flow.isTime(GameFlow::timeOf(Command::Daily)))
        throw CommandError("the game is paused");
    context.flow.perform(Command::Daily);
    return {};
}

} // namespace

std::vector<ConsoleCommand> recordCommands()
{
    return {
        command("games", When::Always, printGames),
        command("review", When::Always, reviewPlace, reviewGame),
        command("summary", When::Always, gameArgument, summary),
        command("share", When::InGame, shareBoard),
        command("play_shared", When::NotPaused, restArgument, playShared),
        command("daily", When::Always, dayArgument, daily),
    };
}

} // namespace lexigrove
