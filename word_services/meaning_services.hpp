#pragma once

#include "settings/options_form.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lexigrove
{

/// The four online services that tell what a word means. Where each lives is in `MeaningServices.txt` of the program
/// folder, which the player may edit: one line a service, in the order below, the address before the path
/// ("https://host"). A line that is missing or is no such address falls back to the built-in one.
class MeaningServices
{
public:
    enum Service : std::size_t { Online, Free, MerriamWebster, Computing };
    static constexpr std::size_t serviceCount = 4;

    /// `folder` ends with its separator.
    explicit MeaningServices(const std::string& folder);

    /// Chooses the service at a game's start from the frame "Word Meanings from". The options are tested in the order
    /// of the services and the last one set wins; with none set the old choice stands.
    void choose(const OptionsForm& options);

    [[nodiscard]] Service chosen() const { return chosen_; }

    /// The whole address of a word's page at the chosen service. The word is appended as it is.
    [[nodiscard]] std::string addressOf(std::string_view word) const;

    /// The address before the path of a service, without a closing "/".
    [[nodiscard]] const std::string& host(Service service) const { return hosts_[service]; }

private:
    std::array<std::string, serviceCount> hosts_;
    Service chosen_ = Free;
};

/// Whether a text is an address that a service may have: https and a host, with a port where it has one; plain http on
/// the machine itself only.
bool isServiceAddress(std::string_view text);

} // namespace lexigrove
