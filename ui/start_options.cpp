#include "ui/start_options.hpp"

#include "ui/look/text.hpp"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace lexigrove
{

namespace
{

/// The toolkit's own options, which QApplication reads later; they are let through.
void addToolkitOptions(QCommandLineParser& parser)
{
    const auto add = [&](const QStringList& names, const char* value) {
        QCommandLineOption option(names, {}, value);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
    };
    add({"display", "geometry", "icon", "platform", "platformpluginpath", "platformtheme", "plugin", "qmljsdebugger",
         "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "style", "stylesheet", "title"},
        "value");
    add({"dograb", "nograb", "reverse", "sync", "widgetcount"}, nullptr);
}

Arrangement arrangementNamed(const QString& name)
{
    if (name.compare("square", Qt::CaseInsensitive) == 0)
        return Arrangement::Square;
    if (name.compare("staggered", Qt::CaseInsensitive) == 0)
        return Arrangement::Staggered;
    throw StartOptionError("--arrangement must be square or staggered: " + name.toStdString());
}

BoardPosition positionOf(const QString& text)
{
    try {
        return boardPositionOf(text.toStdString());
    } catch (const PositionError& error) {
        throw StartOptionError(std::string("--position: ") + error.what());
    }
}

} // namespace

StartOptions readStartOptions(int argc, char** argv)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("LexiGrove, a word game on a board of letter tiles.\n"
                                     "Options of the toolkit, such as \"-platform offscreen\", are taken too.");
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({
        {"folder", "The folder of the game's files: word lists, sounds, colour schemes, scores, configuration.", "DIR"},
        {"arrangement", "The arrangement of the tiles, preset in the options dialog.", "square|staggered"},
        {"position", "Begins with this board, a line that Copy Board gives or docs/position.md describes.", "TEXT"},
        {"daily", "Begins with the board of the day."},
        {"start", "Starts a game with the stored options at once, without the options dialog."},
        {"help", "Shows this text."},
        {"version", "Shows the version."},
    });
    addToolkitOptions(parser);

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += pathToQString(argv[i]);
    const bool understood = parser.parse(arguments);

    StartOptions options;
    if (parser.isSet("help")) {
        const QCoreApplication named(argc, argv); // tells the parser the program's name
        options.answer = parser.helpText().toStdString();
        return options;
    }
    if (parser.isSet("version")) {
        options.answer = "LexiGrove " LEXIGROVE_VERSION "\n";
        return options;
    }
    if (!understood)
        throw StartOptionError(parser.errorText().toStdString());
    if (!parser.positionalArguments().isEmpty())
        throw StartOptionError("unknown option: " + parser.positionalArguments().front().toStdString());
    if (parser.isSet("folder"))
        options.folder = pathFromQString(parser.value("folder"));
    if (parser.isSet("arrangement"))
        options.arrangement = arrangementNamed(parser.value("arrangement"));
    if (parser.isSet("position"))
        options.position = positionOf(parser.value("position"));
    options.daily = parser.isSet("daily");
    options.startAtOnce = parser.isSet("start");
    return options;
}

} // namespace lexigrove
