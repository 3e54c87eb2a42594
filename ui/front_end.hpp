#pragma once

#include "flow/game_flow.hpp"
#include "platform/ports.hpp"
#include "platform/random.hpp"
#include "platform/status_line.hpp"
#include "platform/system_clock.hpp"
#include "settings/sound_cues.hpp"
#include "ui/game_windows.hpp"
#include "ui/machine/host.hpp"
#include "ui/machine/qt_dialogs.hpp"
#include "ui/machine/qt_screen.hpp"
#include "ui/machine/qt_sound_device.hpp"
#include "ui/play/main_window.hpp"
#include "word_services/meaning_services.hpp"

#include <random>
#include <string>

namespace lexigrove
{

/// The game with its windows and the machine it runs on, put together. Requires a QApplication.
class FrontEnd
{
public:
    /// `folder` is the program folder with its trailing separator.
    explicit FrontEnd(const std::string& folder)
        : random_(std::random_device{}()),
          host(folder),
          windows_(host, MeaningServices(folder)),
          flow({dialogs_, screen_, sound_, clock_, random_, status_, windows_}, folder, host.theme.desktop())
    {
        QObject::connect(&host, &Host::happened, &host, [this, folder](Moment moment, int /*place*/) {
            if (moment != Moment::BonusEarned && flow.view().sounds.isOn())
                sound_.send("play " + folder + (moment == Moment::RedTile ? "redtile.wav" : "push.wav"));
        });
    }

private:
    SystemClock clock_;
    Random random_;
    QtSoundDevice sound_;
    StatusLine status_;

public:
    Host host;

private:
    QtScreen screen_{host};
    QtDialogs dialogs_{host};
    GameWindows windows_;

public:
    GameFlow flow;
    MainWindow window{host, flow, status_};
};

} // namespace lexigrove
