#pragma once

#include "settings/game_settings.hpp"

#include <QByteArray>
#include <QSettings>
#include <QString>

#include <string>

namespace lexigrove
{

/// What the player has chosen beside the configuration, whose lines are fixed: "LexigroveSettings.ini" of the program
/// folder, and the window's place in "window.ini" of the user's state folder. A missing file or value means the
/// default; one that cannot be written is not kept.
class SettingsFile
{
public:
    /// How fast letters slide and fall where they are animated.
    enum class Pace { Slow, Medium, Fast };

    /// `folder` ends with its separator.
    explicit SettingsFile(const std::string& folder);

    /// Whether the game pauses when its window is left.
    [[nodiscard]] bool pausesWhenLeft() const { return file_.value("play/pause-when-left", true).toBool(); }
    void setPausesWhenLeft(bool pauses) { file_.setValue("play/pause-when-left", pauses); }

    [[nodiscard]] Pace pace() const;
    void setPace(Pace pace);
    /// The drop-animation delay of a pace, in rounds.
    [[nodiscard]] static int delayOf(Pace pace);

    /// The words that the computer knows; at first the simple ones, so that nobody begins against a wall.
    [[nodiscard]] Vocabulary vocabulary() const;
    void setVocabulary(Vocabulary vocabulary);

    [[nodiscard]] Pressure pressure() const;
    void setPressure(Pressure pressure) { file_.setValue("play/relaxed", pressure == Pressure::Relaxed); }

    /// Whether a hint of the first games was followed.
    [[nodiscard]] bool isHintDone(const char* name) const { return file_.value(QString("hints/") + name).toBool(); }
    void setHintDone(const char* name) { file_.setValue(QString("hints/") + name, true); }

    /// The main window's place and size in the toolkit's own form; empty before they were kept.
    [[nodiscard]] QByteArray windowPlace() const
    {
        const char* const key = "window/place"; // once kept beside the other settings
        return state_.value(key, file_.value(key)).toByteArray();
    }
    void setWindowPlace(const QByteArray& place) { state_.setValue("window/place", place); }

private:
    QSettings file_;
    QSettings state_;
};

} // namespace lexigrove
