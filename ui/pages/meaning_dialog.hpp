#pragma once

#include "opponent/meanings.hpp"
#include "ui/machine/host.hpp"
#include "ui/pages/browser.hpp"

namespace lexigrove
{

/// The meaning window `Form3`: the browser view `WbDictionary` fills it. Esc closes it, and the page ends with it.
class MeaningDialog : public MeaningWindow
{
public:
    MeaningDialog(Host& host, BrowserLoader& loader) : host_(host), loader_(loader) {}

    void show(const MeaningForm& form) override;

private:
    Host& host_;
    BrowserLoader& loader_;
};

} // namespace lexigrove
