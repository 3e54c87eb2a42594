#pragma once

#include "console/line_channel.hpp"
#include "flow/windows.hpp"

namespace lexigrove
{

/// The windows that the rules open, as events; the next input lines press their buttons. A reply that presses none has
/// the event told again.
class ConsoleWindows : public OptionsWindow,
                       public ScoreWindow,
                       public HintsWindow,
                       public MeaningWindow,
                       public StatisticsWindow,
                       public MaintenanceWindow,
                       public HelpWindow,
                       public AboutWindow
{
public:
    explicit ConsoleWindows(LineChannel& channel) : channel_(channel) {}

    [[nodiscard]] Windows windows() { return {*this, *this, *this, *this, *this, *this, *this, *this}; }

    void show(OptionsForm& form) override;
    void show(ScoreForm& form) override;
    void show(HintsForm& form) override;
    void show(const MeaningForm& form) override;

    // No event tells of these: what they show has commands of its own, and they are closed at once.

    void show(const StatisticsForm& /*form*/) override {}
    void show(DictionaryMaintenance& /*form*/) override {}
    void show(const HelpForm& /*form*/) override {}
    void show(const AboutForm& /*form*/) override {}

    /// Preset letters were chosen since the last game was dealt: they count for the next one only.
    bool presetLettersWait = false;

private:
    LineChannel& channel_;
};

} // namespace lexigrove
