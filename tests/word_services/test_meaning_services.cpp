#include "word_services/meaning_services.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

// Guards against an address in the player's file that sends words in the clear or elsewhere, and against a shipped file
// that differs from the built-in addresses.
TEST(MeaningServices, TakesPlainHostsOnly)
{
    for (const char* good :
         {"https://one.example", "https://four.example:65535", "http://127.0.0.1:8080", "http://localhost"})
        EXPECT_TRUE(isServiceAddress(good)) << good;
    for (const char* bad :
         {"", "https://", "https://a b", "ftp://x", "file:///etc/passwd", "https://user@host",
          "https://host:", "https://host:123456", "https://host:65536", "https://host/path", "https://h\xF6st",
          "https://a..b", "https://-a", "http://plain.example", "http://localhost.example", "javascript:alert(1)"})
        EXPECT_FALSE(isServiceAddress(bad)) << bad;

    const MeaningServices shipped(DATA_FOLDER);
    const MeaningServices builtIn("/nowhere/");
    for (std::size_t i = 0; i < MeaningServices::serviceCount; ++i) {
        const auto service = static_cast<MeaningServices::Service>(i);
        EXPECT_EQ(shipped.host(service), builtIn.host(service));
        EXPECT_TRUE(isServiceAddress(builtIn.host(service)));
    }
}

} // namespace
} // namespace lexigrove
