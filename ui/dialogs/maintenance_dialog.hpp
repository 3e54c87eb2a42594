#pragma once

#include "flow/windows.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The window "Dictionary Maintenance". Closing it, by its frame or with Esc, is "Exit".
class MaintenanceDialog : public MaintenanceWindow
{
public:
    explicit MaintenanceDialog(Host& host) : host_(host) {}

    void show(DictionaryMaintenance& form) override;

private:
    Host& host_;
};

} // namespace lexigrove
