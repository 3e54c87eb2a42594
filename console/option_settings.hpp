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

/// Reads KEY=VALUE. Throws CommandError for an unknown key or value.
OptionSetting readOption(std::string_view text);

/// Reads any number of them. A path or a scheme's name may contain single blanks: a following argument without "=" is
/// part of it.
std::vector<OptionSetting> readOptions(Arguments& arguments);

/// Makes the choice as a mouse click in the dialog would.
void applyOption(OptionsForm& form, const OptionSetting& setting);

/// All options as KEY=VALUE lines. A group without a choice, which a garbled configuration may leave, has no value.
Lines optionLines(const OptionsForm& form, const std::string& schemeName);

} // namespace lexigrove
