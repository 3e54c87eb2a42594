#pragma once

#include "console/arguments.hpp"
#include "console/line_channel.hpp"
#include "settings/options_form.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// One KEY=VALUE for the options dialog, checked.
struct OptionSetting {
    std::string key;
    std::string value;
};

/// Reads KEY=VALUE. Throws CommandError for a key or a value that there is not.
OptionSetting readOption(std::string_view text);

/// Reads any number of them. A path or a scheme's name may hold single blanks: what follows one without a "=" belongs
/// to it.
std::vector<OptionSetting> readOptions(Arguments& arguments);

/// Makes the choice as a mouse click in the dialog would.
void applyOption(OptionsForm& form, const OptionSetting& setting);

/// All options as KEY=VALUE lines. A group without a choice, as a garbled configuration may leave it, has no value.
Lines optionLines(const OptionsForm& form, const std::string& schemeName);

} // namespace lexigrove
