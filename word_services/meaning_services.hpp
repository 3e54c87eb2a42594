#pragma once

#include "settings/options_form.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lexigrove
{

/// The four online services that explain words. Their addresses are in `MeaningServices.txt` in the program folder,
/// which the player may edit: one line per service, in the order below, with the address before the path
/// ("https://host"). A missing or invalid line falls back to the built-in address.
class MeaningServices
{
public:
    enum Service : std::size_t { Online, Free, MerriamWebster, Computing };
    static constexpr std::size_t serviceCount = 4;

    /// `folder` ends with a separator.
    explicit MeaningServices(const std::string& folder);

    /// Chooses the service at the start of a game from the frame "Word Meanings from". The options are tested in the
    /// order of the services and the last one set wins; if none is set, the old choice stays.
    void choose(const OptionsForm& options);

    [[nodiscard]] Service chosen() const { return chosen_; }

    /// The full address of a word's page at the chosen service. The word is appended unchanged.
    [[nodiscard]] std::string addressOf(std::string_view word) const;

    /// A service's address before the path, without a trailing "/".
    [[nodiscard]] const std::string& host(Service service) const { return hosts_[service]; }

private:
    std::array<std::string, serviceCount> hosts_;
    Service chosen_ = Free;
};

/// Whether a text is an address that a service may have: https and a host, optionally with a port; plain http only on
/// this machine.
bool isServiceAddress(std::string_view text);

} // namespace lexigrove
