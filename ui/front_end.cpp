#include "ui/front_end.hpp"

#include "platform/ports.hpp"

#include <random>

namespace lexigrove
{

FrontEnd::FrontEnd(const std::string& folder)
    : random_(std::random_device{}()),
      flow({dialogs_, screen_, sound_, clock_, random_, status_, windows_}, folder, host.theme.desktop())
{
}

} // namespace lexigrove
