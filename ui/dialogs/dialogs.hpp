#pragma once

namespace lexigrove
{

class DictionaryMaintenance;
class HintsForm;
class Host;
class OptionsForm;
class PastGamesForm;
class ReviewForm;
class ScoreForm;
class StatisticsForm;
struct ContinueForm;

// The modal windows for the forms. Each call returns when its form has been hidden or its window closed.

/// The question of a start, with a picture of the game that was kept. Closing it is No.
void runContinueDialog(Host& host, ContinueForm& form);

/// The options dialog `Form7`. Closing it is "Exit"; Esc does nothing, so that a slip never ends the program.
void runOptionsDialog(Host& host, OptionsForm& form);

/// The top-ten window `ScoreForm`. Closing it, by its frame or with Esc, is "Close".
void runScoreDialog(Host& host, ScoreForm& form);

/// The hints window `Form2`. It opens to the right of the board, which stays visible, because the row picked is shown
/// there at once. Enter and a double click on a row select it; Esc is "Close".
void runHintsDialog(Host& host, HintsForm& form);

/// The statistics window `Form4`, with its chart in `Picture1`.
void runStatisticsDialog(Host& host, const StatisticsForm& form);

/// The games that are over: list, chart, bests and calendar.
void runPastGamesDialog(Host& host, PastGamesForm& form);

/// One game that is over, turn by turn.
void runReviewDialog(Host& host, ReviewForm& form);

/// The window "Dictionary Maintenance". Closing it, by its frame or with Esc, is "Exit".
void runMaintenanceDialog(Host& host, DictionaryMaintenance& form);

/// The about box `AboutForm`.
void runAboutDialog(Host& host);

} // namespace lexigrove
