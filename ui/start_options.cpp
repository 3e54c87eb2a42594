#include "ui/start_options.hpp"

#include "ui/look/text.hpp"

#include <string_view>

namespace lexigrove
{

namespace
{

constexpr const char* help = R"(Usage: lexigrove [options]
LexiGrove, a word game on a board of letter tiles.

  --folder DIR               the folder of the game's files: word lists, sounds, colour
                             schemes, scores, configuration
  --arrangement square|staggered
                             the arrangement of the tiles, preset in the options dialog
  --start                    starts a game with the stored options at once, without the
                             options dialog
  --help                     shows this text
  --version                  shows the version

Options of the toolkit, such as "-platform offscreen", are taken too.
)";

Arrangement arrangementNamed(const QString& name)
{
    if (name.compare("square", Qt::CaseInsensitive) == 0)
        return Arrangement::Square;
    if (name.compare("staggered", Qt::CaseInsensitive) == 0)
        return Arrangement::Staggered;
    throw StartOptionError("--arrangement must be square or staggered: " + name.toStdString());
}

} // namespace

StartOptions readStartOptions(const QStringList& arguments)
{
    StartOptions options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString name = arguments[i].section('=', 0, 0);
        const auto value = [&] {
            if (arguments[i].contains('='))
                return arguments[i].section('=', 1);
            if (i + 1 == arguments.size())
                throw StartOptionError(name.toStdString() + " asks for a value");
            return arguments[++i];
        };
        if (name == "--folder")
            options.folder = pathFromQString(value());
        else if (name == "--arrangement")
            options.arrangement = arrangementNamed(value());
        else if (arguments[i] == "--start")
            options.startAtOnce = true;
        else
            throw StartOptionError("unknown option: " + arguments[i].toStdString());
    }
    return options;
}

std::optional<std::string> answerWithoutWindow(int argc, const char* const* argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--help")
            return help;
        if (std::string_view(argv[i]) == "--version")
            return "LexiGrove " LEXIGROVE_VERSION "\n";
    }
    return std::nullopt;
}

} // namespace lexigrove
