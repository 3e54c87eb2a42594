#include "console/command.hpp"
#include "dictionary/dictionary.hpp"
#include "dictionary/field_cipher.hpp"
#include "dictionary/word_text.hpp"
#include "platform/ascii.hpp"
#include "settings/colour_scheme.hpp"

namespace lexigrove
{

namespace
{

Lines wordCount(CommandContext& context)
{
    return {std::to_string(context.flow.view().dictionary.words.count())};
}

int entryArgument(Arguments& arguments)
{
    return arguments.number("entry", 0, WordList::capacity);
}

Lines word(CommandContext& context, int entry)
{
    return {std::string(context.flow.view().dictionary.words.entry(entry))};
}

/// The empty word can be found: it is entry 0.
Lines findWord(CommandContext& context, const std::string& sought)
{
    return {std::to_string(context.flow.view().dictionary.words.findWord(sought))};
}

Lines traceWord(CommandContext& context, const std::string& sought)
{
    const TracedWord traced = context.study.trace(sought);
    Lines lines{std::to_string(traced.matchedLength)};
    lines.insert(lines.end(), traced.items.begin(), traced.items.end());
    return lines;
}

Lines sweep(CommandContext& context)
{
    const CandidateList& found = context.study.sweep();
    Lines lines{std::to_string(found.count()) + " " + std::to_string(found.bestScorePosition()) + " " +
                std::to_string(found.bestLengthPosition())};
    for (int position = 1; position <= found.count(); ++position)
        lines.push_back(found.item(position));
    return lines;
}

Lines computerTurn(CommandContext& context)
{
    context.study.computerTurn();
    return {};
}

template <Study::Maintenance operation>
Lines maintain(CommandContext& context, const std::string& text)
{
    if (!context.study.maintain(operation, text))
        throw CommandError(context.status.Label1);
    return {};
}

Lines showDictionary(CommandContext& context)
{
    maintain<Study::Maintenance::ShowDictionary>(context, "");
    return {std::to_string(context.study.listedWords())};
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
    return context.study.scores();
}

/// The final score, or -1 to only show the list.
int codeArgument(Arguments& arguments)
{
    return arguments.number("code", -1, 1'000'000'000);
}

Lines topTen(CommandContext& context, int code)
{
    return {context.study.showTopTen(code < 0 ? std::nullopt : std::optional(code))};
}

Lines loadConfiguration(CommandContext& context)
{
    context.study.loadConfiguration();
    return {};
}

Lines saveConfiguration(CommandContext& context)
{
    context.study.saveConfiguration();
    return {};
}

/// A name may contain blanks; those around it are ignored.
std::string schemeArgument(Arguments& arguments)
{
    const std::string text = arguments.rest();
    return std::string(ascii::trimmed(text));
}

Lines loadScheme(CommandContext& context, const std::string& name)
{
    context.study.loadScheme(name);
    const ColourScheme& scheme = context.flow.view().scheme;
    Lines lines{scheme.currentName};
    for (std::size_t i = 0; i < ColourScheme::fileEntries; ++i)
        lines.push_back(std::to_string(scheme.entry(i)));
    return lines;
}

} // namespace

std::vector<ConsoleCommand> wordsCommands()
{
    const auto sought = [](Arguments& arguments) { return arguments.next().value_or(""); };
    const auto traced = [](Arguments& arguments) { return arguments.required("word"); };
    return {
        command("word_count", When::Always, wordCount),
        command("word", When::Always, entryArgument, word),
        command("find", When::Always, sought, findWord),
        command("trace", When::InGame, traced, traceWord),
        command("sweep", When::InGame, sweep),
        command("computer_turn", When::InPlay, computerTurn),
        command("spell_check", When::InGame, restArgument, maintain<Study::Maintenance::SpellCheck>),
        command("add_word", When::InGame, restArgument, maintain<Study::Maintenance::AddWord>),
        command("remove_word", When::InGame, restArgument, maintain<Study::Maintenance::RemoveWord>),
        command("show_dictionary", When::InGame, showDictionary),
        command("export", Command::ExportWords),
        command("encipher", When::Always, cipherArguments, encipherText),
        command("decipher", When::Always, cipherArguments, decipherText),
        command("scores", When::Always, scores),
        command("top10", When::Always, codeArgument, topTen),
        command("load_config", When::Always, loadConfiguration),
        command("save_config", When::Always, saveConfiguration),
        command("load_scheme", When::Always, schemeArgument, loadScheme),
    };
}

} // namespace lexigrove
