#include "ui/machine/settings_file.hpp"

#include "platform/program_folder.hpp"
#include "ui/look/text.hpp"

namespace lexigrove
{

namespace
{

const char* const paceNames[] = {"slow", "medium", "fast"};
const char* const vocabularyNames[] = {"every", "common", "simple"};

} // namespace

SettingsFile::SettingsFile(const std::string& folder)
    : file_(pathToQString(folder + "LexigroveSettings.ini"), QSettings::IniFormat),
      state_(pathToQString(stateFolder(folder) + "window.ini"), QSettings::IniFormat)
{
}

SettingsFile::Pace SettingsFile::pace() const
{
    const QString name = file_.value("play/pace").toString();
    for (const Pace pace : {Pace::Slow, Pace::Fast}) {
        if (name == paceNames[static_cast<int>(pace)])
            return pace;
    }
    return Pace::Medium;
}

Vocabulary SettingsFile::vocabulary() const
{
    const QString name = file_.value("play/computer-knows").toString();
    for (const Vocabulary vocabulary : {Vocabulary::Every, Vocabulary::Common}) {
        if (name == vocabularyNames[static_cast<int>(vocabulary)])
            return vocabulary;
    }
    return Vocabulary::Simple;
}

void SettingsFile::setVocabulary(Vocabulary vocabulary)
{
    file_.setValue("play/computer-knows", vocabularyNames[static_cast<int>(vocabulary)]);
}

Pressure SettingsFile::pressure() const
{
    return file_.value("play/relaxed").toBool() ? Pressure::Relaxed : Pressure::On;
}

void SettingsFile::setPace(Pace pace)
{
    file_.setValue("play/pace", paceNames[static_cast<int>(pace)]);
}

int SettingsFile::delayOf(Pace pace)
{
    switch (pace) {
    case Pace::Slow:
        return 2 * GameSettings::startDelay;
    case Pace::Fast:
        return GameSettings::startDelay / 3;
    case Pace::Medium:
        break;
    }
    return GameSettings::startDelay;
}

} // namespace lexigrove
