#include "ui/first_start.hpp"

#include "platform/text_file.hpp"
#include "ui/look/theme.hpp"

#include <QApplication>
#include <QPalette>

#include <vector>

namespace lexigrove
{

namespace
{

constexpr const char* firstLine = "A first start"; // where a saved configuration has its date
constexpr std::size_t schemeLine = 2;
constexpr std::size_t animationLine = 18;
constexpr std::size_t noAnimationLine = 19;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

void prepareFirstStart(const std::string& folder)
{
    const std::string path = folder + "Lexigrove.cfg";
    try {
        std::vector<std::string> lines = readLines(path);
        if (lines.size() < noAnimationLine || lines.front() != firstLine)
            return;
        if (isDark(QApplication::palette()))
            lines[schemeLine - 1] = "Night.sch";
        if (!Theme::showsAnimations()) {
            lines[animationLine - 1] = "False";
            lines[noAnimationLine - 1] = "True";
        }
        replaceLines(path, lines);
    } catch (const FileError&) {
        return; // a configuration that cannot be read or written is the game's to report
    }
}

} // namespace lexigrove
