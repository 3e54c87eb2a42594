#pragma once

namespace lexigrove
{

class BrowserLoader;
class Host;
struct MeaningForm;

/// The meaning window `Form3`: the browser view `WbDictionary` fills it. Esc closes it together with its page.
void runMeaningDialog(Host& host, BrowserLoader& loader, const MeaningForm& form);

} // namespace lexigrove
