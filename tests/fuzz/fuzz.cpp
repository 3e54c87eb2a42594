// Fuzzes one reader: LEXIGROVE_READER=scores fuzz [NEW-FINDINGS] tests/fuzz/corpus/scores

#include "tests/fuzz/readers.hpp"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto reader = lexigrove::readers().at(std::getenv("LEXIGROVE_READER"));
    reader(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
