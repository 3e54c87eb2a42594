#pragma once

#include "opponent/hints_form.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The hints window `Form2`. It opens to the right of the board, which stays in sight, for the row picked is shown
/// there at once. Enter and a double click on a row select it; Esc is "Close".
class HintsDialog : public HintsWindow
{
public:
    explicit HintsDialog(Host& host) : host_(host) {}

    void show(HintsForm& form) override;

private:
    Host& host_;
};

} // namespace lexigrove
