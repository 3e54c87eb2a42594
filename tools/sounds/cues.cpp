#include "tools/sounds/cues.hpp"

namespace lexigrove::tools
{

namespace
{

// Semitones above C4.
constexpr double e3 = -8;
constexpr double a3 = -3;
constexpr double c4 = 0;
constexpr double d4 = 2;
constexpr double e4 = 4;
constexpr double g4 = 7;
constexpr double c5 = 12;
constexpr double d5 = 14;
constexpr double e5 = 16;
constexpr double g5 = 19;
constexpr double a5 = 21;
constexpr double c6 = 24;
constexpr double e6 = 28;

} // namespace

std::vector<Cue> cues()
{
    return {
        // A tile is clicked, up to ten times per word: the shortest and lightest of all.
        {"beep3.wav", 0.14, {{c6, 0, 0.022, 0.34, wood(), 0}}},
        // A used tile leaves the board, several in a row: a soft pop below the tick.
        {"beep4.wav", 0.20, {{g4, 0, 0.035, 0.36, wood(), 7}}},
        // Two letters change places: two quick knocks, there and back.
        {"click.wav", 0.22, {{e6, 0, 0.014, 0.26, wood(), 0}, {a5, 0.06, 0.018, 0.26, wood(), 0}}},
        // Not allowed: low, dull, falling; a nudge, not an alarm.
        {"err3.wav", 0.50, {{a3, 0, 0.07, 0.42, hollow(), 0}, {e3, 0.13, 0.10, 0.46, hollow(), 0}}},
        // A column sinks: a dull knock that falls.
        {"push.wav", 0.35, {{g4, 0, 0.05, 0.40, hollow(), 5}, {e4, 0.09, 0.07, 0.40, hollow(), 0}}},
        // A tile turns red: two low tones that do not agree, softly.
        {"redtile.wav", 0.60, {{e4, 0, 0.10, 0.30, wood(), 0}, {d4, 0.10, 0.14, 0.30, wood(), 0}}},
        // A long word: a run upwards that rings.
        {"cnqwon.wav",
         1.20,
         {{c5, 0, 0.16, 0.24, glass(), 0},
          {e5, 0.075, 0.16, 0.24, glass(), 0},
          {g5, 0.15, 0.18, 0.24, glass(), 0},
          {c6, 0.225, 0.26, 0.28, glass(), 0}}},
        // A window opens, a hint comes: one friendly fifth.
        {"cnqmenu.wav", 0.45, {{c5, 0, 0.08, 0.26, glass(), 0}, {g5, 0.045, 0.09, 0.22, glass(), 0}}},
        // Sound is on: a step up that stays.
        {"cnqendgm.wav",
         0.80,
         {{g4, 0, 0.12, 0.28, wood(), 0}, {c5, 0.12, 0.18, 0.26, glass(), 0}, {e5, 0.12, 0.18, 0.18, glass(), 0}}},
        // Goodbye: slowly down to the key note, over a low one.
        {"thanks.wav",
         1.45,
         {{e5, 0, 0.22, 0.22, glass(), 0},
          {d5, 0.20, 0.22, 0.20, glass(), 0},
          {c5, 0.40, 0.32, 0.22, glass(), 0},
          {c4, 0.40, 0.30, 0.20, hollow(), 0},
          {e4, 0.40, 0.28, 0.10, hollow(), 0}}},
    };
}

} // namespace lexigrove::tools
