#pragma once

#include "flow/windows.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The about box `AboutForm`.
class AboutDialog : public AboutWindow
{
public:
    explicit AboutDialog(Host& host) : host_(host) {}

    void show(const AboutForm& form) override;

private:
    Host& host_;
};

} // namespace lexigrove
