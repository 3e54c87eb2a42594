#pragma once

#include "settings/options_form.hpp"
#include "tests/settings/world.hpp"

namespace lexigrove
{

/// An options dialog with all that it reaches.
class OptionsWorld : public testing::Test
{
protected:
    /// A click: the choice is selected and the button released over it.
    void click(Choice& choice)
    {
        form.select(choice);
        form.mouseReleased(choice);
    }

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    RecordedSounds device;
    QuietScreen screen;
    Dictionary dictionary{folder.path()};
    ColourScheme scheme{folder.path(), dialogs};
    SoundCues sounds{device, folder.path()};
    OptionsForm form{{dialogs, screen, dictionary, scheme, sounds, folder.path()}};
};

} // namespace lexigrove
