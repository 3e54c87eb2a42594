#include "record/past_games.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/dialogs/score_chart.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/arrow_box.hpp"
#include "ui/look/text.hpp"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

class PastGamesDialog : public FormDialog
{
public:
    PastGamesDialog(Host& gameHost, GameWindows& windows, PastGamesForm& form)
        : FormDialog(gameHost, "PastGames", "Past Games"),
          windows_(windows),
          form_(form),
          games_(new QTableWidget(0, PastGamesForm::columnCount)),
          level_(new ArrowBox(host.theme)),
          chart_(new ScoreChart(host.theme)),
          bests_(new QLabel),
          calendar_(new DayCalendar(host.theme)),
          streak_(new QLabel),
          damaged_(new QLabel),
          open_(newButton("Open", "Look back", "Turn by turn through the game that is marked"))
    {
        setUpGames();
        setUpLevels();
        auto* const side = new QVBoxLayout;
        side->setSpacing(Theme::spacing);
        side->addWidget(level_);
        side->addWidget(chart_);
        addHeading(*side, tr("Best scores"));
        side->addWidget(bests_);
        addHeading(*side, tr("Board of the day"));
        side->addWidget(calendar_);
        side->addWidget(streak_);
        side->addStretch();
        auto* const areas = new QHBoxLayout;
        areas->setSpacing(Theme::gap);
        areas->addWidget(games_, 1);
        areas->addLayout(side);

        QPushButton* const close = newButton("Close", "Close");
        open_->setProperty("primary", true);
        open_->setDefault(true);
        connect(open_, &QPushButton::clicked, this, [this] { openCurrent(); });
        connect(close, &QPushButton::clicked, this, [this] { reject(); });
        QVBoxLayout* const column = newColumn();
        column->addLayout(areas, 1);
        column->addWidget(damaged_);
        column->addLayout(newButtonRow({open_, close}));
        showForm();
        games_->setFocus();
        resizeOnScreen(*this, 126 * Theme::grid, 72 * Theme::grid);
    }

protected:
    void showForm() override
    {
        if (!form_.isVisible()) {
            accept();
            return;
        }
        fillGames();
        chart_->show(form_.chart());
        QStringList lines;
        for (const PastGamesForm::Best& best : form_.bests()) {
            lines.append(tr("%1, %2: %3")
                             .arg(best.level == 0 ? tr("Own dictionary") : tr("Level %1").arg(best.level),
                                  best.arrangement == Arrangement::Square ? tr("square") : tr("staggered"))
                             .arg(best.score));
        }
        bests_->setText(lines.isEmpty() ? tr("None yet") : lines.join('\n'));
        calendar_->show(form_.calendar());
        const auto best = form_.bestOfCalendar();
        streak_->setText(tr(form_.streak() == 1 ? "%1 day in a row" : "%1 days in a row").arg(form_.streak()) +
                         (best ? tr(", best score %1").arg(*best) : QString()));
        damaged_->setText(toQString(form_.damagedText()));
        damaged_->setVisible(!form_.damagedText().empty());
        open_->setEnabled(games_->currentRow() >= 0);
    }

    void reject() override
    {
        input([this] { form_.pressClose(); });
    }

private:
    static void addHeading(QVBoxLayout& column, const QString& text)
    {
        auto* const heading = new QLabel(text);
        heading->setProperty("quiet", true);
        column.addWidget(heading);
    }

    void setUpGames()
    {
        games_->setObjectName("Games");
        games_->setAccessibleName(tr("Past games"));
        games_->setSelectionBehavior(QAbstractItemView::SelectRows);
        games_->setSelectionMode(QAbstractItemView::SingleSelection);
        games_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        games_->setTabKeyNavigation(false);
        games_->setShowGrid(false);
        games_->verticalHeader()->hide();
        games_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
        games_->horizontalHeader()->setStretchLastSection(true);
        games_->horizontalHeader()->setFont(Theme::font(Theme::quietTextSize, true));
        games_->horizontalHeader()->setSectionsClickable(true);
        games_->horizontalHeader()->setSortIndicatorShown(true);
        QStringList headings;
        for (const char* const heading : PastGamesForm::headings)
            headings.append(heading);
        games_->setHorizontalHeaderLabels(headings);
        connect(games_->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
            input([this, column] { form_.headingClicked(static_cast<PastGamesForm::Column>(column)); });
        });
        connect(games_, &QTableWidget::cellDoubleClicked, this, [this] { openCurrent(); });
        connect(games_, &QTableWidget::itemSelectionChanged, this,
                [this] { open_->setEnabled(games_->currentRow() >= 0); });
    }

    void setUpLevels()
    {
        level_->setObjectName("Level");
        level_->setAccessibleName(tr("Games of which level"));
        level_->addItem(tr("All levels"), -1);
        for (int level = 1; level <= 3; ++level)
            level_->addItem(tr("Level %1").arg(level), level);
        level_->addItem(tr("Own dictionary"), 0);
        connect(level_, &QComboBox::activated, this, [this](int index) {
            const int level = level_->itemData(index).toInt();
            input([this, level] { form_.filter(level < 0 ? std::nullopt : std::optional(level)); });
        });
    }

    void fillGames()
    {
        const auto& rows = form_.rows();
        games_->setRowCount(static_cast<int>(rows.size()));
        for (int row = 0; row < games_->rowCount(); ++row) {
            for (int column = 0; column < PastGamesForm::columnCount; ++column) {
                const auto kind = static_cast<PastGamesForm::Column>(column);
                auto* const cell =
                    new QTableWidgetItem(toQString(PastGamesForm::text(rows[static_cast<std::size_t>(row)], kind)));
                if (PastGamesForm::isNumber(kind))
                    cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                games_->setItem(row, column, cell);
            }
        }
        games_->horizontalHeader()->setSortIndicator(static_cast<int>(form_.sortedBy()),
                                                     form_.isAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
        if (games_->rowCount() > 0 && games_->currentRow() < 0)
            games_->selectRow(0);
    }

    void openCurrent()
    {
        const int row = games_->currentRow();
        if (row < 0)
            return;
        host.gate.run([this, row] {
            const auto review = form_.openRow(static_cast<std::size_t>(row));
            windows_.show(*review);
        });
    }

    GameWindows& windows_;
    PastGamesForm& form_;
    QTableWidget* games_;
    ArrowBox* level_;
    ScoreChart* chart_;
    QLabel* bests_;
    DayCalendar* calendar_;
    QLabel* streak_;
    QLabel* damaged_;
    QPushButton* open_;
};

} // namespace

void GameWindows::show(PastGamesForm& form)
{
    PastGamesDialog dialog(host_, *this, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
