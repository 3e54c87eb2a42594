#pragma once

#include "settings/options_form.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The options dialog `Form7`. Closing it is "Exit"; Esc does nothing, so that a slip never ends the program.
class OptionsDialog : public OptionsWindow
{
public:
    explicit OptionsDialog(Host& host) : host_(host) {}

    void show(OptionsForm& form) override;

private:
    Host& host_;
};

} // namespace lexigrove
