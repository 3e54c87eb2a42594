#pragma once

#include "controls/label.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace lexigrove
{

/// The help window `Form5`: the page `lexigrove.htm` of the program folder in a browser view.
struct HelpForm {
    HelpForm();

    std::string Caption = "LexiGrove Help";
    std::string Tag; ///< the address to show, set before the window is shown
    Label Command1;  ///< "Back"
    Label Command2;  ///< "Forward"
    Label Command3;  ///< "Exit"
};

/// The address of the help page; `folder` ends with its separator.
std::string helpAddress(const std::string& folder);

/// Whether "Back" and "Forward" do anything at the browser's current address: only between places of the help page
/// reached through its "#" anchors.
bool mayLeaf(std::string_view currentAddress);

/// Size of the browser view for a window's inner size and the view's top, all in 1/1440 inch. Nothing when it would be
/// negative: the view then stays as it is.
struct HelpViewSize {
    int width, height;
};
std::optional<HelpViewSize> helpViewSize(int innerWidth, int innerHeight, int viewTop);

} // namespace lexigrove
