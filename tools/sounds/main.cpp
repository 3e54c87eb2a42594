// Makes the game's wave files.

#include "platform/text_file.hpp"
#include "tools/sounds/cues.hpp"
#include "tools/sounds/wave_file.hpp"

#include <exception>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "Usage: make-sounds TARGET-FOLDER\n";
        return 2;
    }
    try {
        using namespace lexigrove;
        for (const tools::Cue& cue : tools::cues())
            replaceFile(std::string(argv[1]) + "/" + cue.file,
                        tools::waveFile(tools::synthesize(cue.notes, cue.seconds)));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
