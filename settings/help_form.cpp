#include "settings/help_form.hpp"

namespace lexigrove
{

HelpForm::HelpForm() : Command1{"Back"}, Command2{"Forward"}, Command3{"Exit"} {}

std::string helpAddress(const std::string& folder)
{
    return folder + "lexigrove.htm";
}

bool mayLeaf(std::string_view currentAddress)
{
    return currentAddress.find('#') != std::string_view::npos;
}

std::optional<HelpViewSize> helpViewSize(int innerWidth, int innerHeight, int viewTop)
{
    constexpr int sideMargin = 120;
    constexpr int buttonStrip = 480;
    const HelpViewSize size{innerWidth - sideMargin, innerHeight - buttonStrip - viewTop};
    if (size.width < 0 || size.height < 0)
        return std::nullopt;
    return size;
}

} // namespace lexigrove
