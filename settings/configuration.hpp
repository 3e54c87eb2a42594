#pragma once

#include "controls/dc.hpp"
#include "dictionary/dictionary.hpp"
#include "platform/clock.hpp"
#include "platform/dialogs.hpp"
#include "settings/options_form.hpp"

#include <string>

namespace lexigrove
{

/// What the configuration is read into and written from.
struct ConfigurationContext {
    Dialogs& dialogs;
    const Clock& clock;
    OptionsForm& options;
    Dc& Dc1; ///< the main window's clock
    ColourScheme& scheme;
    Dictionary& dictionary;
    std::string folder; ///< the program folder with its trailing separator
};

/// The player's choices between runs: `Lexigrove.cfg` in the program folder, 23 lines that have their meaning by
/// position alone.
class Configuration
{
public:
    static constexpr int lineCount = 23;

    explicit Configuration(const ConfigurationContext& context);

    /// Reads the file. A clock with the colour "DEFAULT" takes two colours of the main window: its background and that
    /// of its list `List1`. If the file is missing, short or garbled, sets the controls to their defaults, shows a
    /// message and writes a new file; a scheme name, clock look or delay before the fault is kept.
    void load(Colour windowBackground, Colour list1Background);

    /// Writes the whole file. A failure shows a message and leaves the old file.
    void save();
    /// The same, without a word when it fails.
    void saveQuietly() { (void)write(); }

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    bool write();
    bool read(Colour windowBackground, Colour list1Background);
    void readCustomDictionary(const std::string& line);
    void setDefaults();

    ConfigurationContext context_;
    std::string path_;
};

} // namespace lexigrove
