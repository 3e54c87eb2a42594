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

using Context = CommandContext;

const WordList& wordsOf(const CommandContext& context)
{
    return context.flow.view().dictionary.words;
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

template <Study::Maintenance operation>
void maintain(CommandContext& context, const std::string& text)
{
    if (!context.study.maintain(operation, text))
        throw CommandError(context.status.Label1);
}

std::string showDictionary(CommandContext& context)
{
    maintain<Study::Maintenance::ShowDictionary>(context, "");
    return std::to_string(context.study.listedWords());
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

/// The final score; -1, to only show the list, is nothing.
std::optional<int> codeArgument(Arguments& arguments)
{
    const int code = arguments.number("code", -1, 1'000'000'000);
    return code < 0 ? std::nullopt : std::optional(code);
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
    const auto entry = [](Arguments& arguments) { return arguments.number("entry", 0, WordList::capacity); };
    const auto sought = [](Arguments& arguments) { return arguments.next().value_or(""); }; // the empty word is entry 0
    const auto traced = [](Arguments& arguments) { return arguments.required("word"); };
    const auto wordAt = [](Context& context, int number) { return wordsOf(context).entry(number); };
    const auto find = [](Context& context, const std::string& word) {
        return std::to_string(wordsOf(context).findWord(word));
    };
    const auto topTen = [](Context& context, std::optional<int> score) { return context.study.showTopTen(score); };
    return {
        command("word_count", When::Always, [](Context& context) { return std::to_string(wordsOf(context).count()); }),
        command("word", When::Always, entry, wordAt),
        command("find", When::Always, sought, find),
        command("trace", When::InGame, traced, traceWord),
        command("sweep", When::InGame, sweep),
        command("computer_turn", When::InPlay, [](Context& context) { context.study.computerTurn(); }),
        command("spell_check", When::InGame, restArgument, maintain<Study::Maintenance::SpellCheck>),
        command("add_word", When::InGame, restArgument, maintain<Study::Maintenance::AddWord>),
        command("remove_word", When::InGame, restArgument, maintain<Study::Maintenance::RemoveWord>),
        command("show_dictionary", When::InGame, showDictionary),
        command("export", Command::ExportWords),
        command("encipher", When::Always, cipherArguments,
                [](Context&, const CipherArguments& cipher) { return encipher(cipher.text, cipher.key); }),
        command("decipher", When::Always, cipherArguments,
                [](Context&, const CipherArguments& cipher) { return decipher(cipher.text, cipher.key); }),
        command("scores", When::Always, [](Context& context) { return context.study.scores(); }),
        command("top10", When::Always, codeArgument, topTen),
        command("load_config", When::Always, [](Context& context) { context.study.loadConfiguration(); }),
        command("save_config", When::Always, [](Context& context) { context.study.saveConfiguration(); }),
        command("load_scheme", When::Always, schemeArgument, loadScheme),
    };
}

} // namespace lexigrove
