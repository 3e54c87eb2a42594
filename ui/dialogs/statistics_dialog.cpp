#include "scores/statistics_form.hpp"
#include "ui/dialogs/chart_view.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

constexpr int rowHeight = 28;
constexpr int valueRows = 8;

/// The columns, in the order of the values.
enum Column : std::uint8_t { Your, Frame2 };
constexpr const char* columnCaptions[] = {"Your", "Computer"};

constexpr const char* rowCaptions[] = {"Number of Words made",
                                       "Number of 2 letter Words",
                                       "Number of 3 letter Words",
                                       "Number of 4 letter Words",
                                       "Number of 5 or more letter Words",
                                       "Number of hints used",
                                       "Length of longest Word made",
                                       "longest Word"};

class StatisticsDialog : public FormDialog
{
public:
    StatisticsDialog(Host& gameHost, const StatisticsForm& form)
        : FormDialog(gameHost, "Form4", "Statistics"), form_(form)
    {
        auto* const content = new QWidget;
        auto* const areas = new QHBoxLayout(content);
        areas->setContentsMargins({});
        areas->setSpacing(Theme::gap);
        areas->addWidget(newTable());
        areas->addSpacing(Theme::grid);
        areas->addWidget(new ChartView(form, gameHost.theme), 0, Qt::AlignTop);

        auto* const Exitx = newButton("Exitx", "Exit");
        Exitx->setDefault(true);
        Exitx->setMinimumWidth(Theme::scaled(14 * Theme::grid));
        connect(Exitx, &QPushButton::clicked, this, &QDialog::accept);

        QVBoxLayout* const column = newColumn();
        column->addWidget(new ScrollPart(content));
        column->addWidget(Exitx, 0, Qt::AlignRight);
        Exitx->setFocus();
    }

private:
    /// A real table, which assistive tools read with its headings.
    QTableWidget* newTable() const
    {
        auto* const table = new QTableWidget(valueRows, 2);
        table->setObjectName("sval");
        table->setAccessibleName(tr("Statistics"));
        table->setEditTriggers(QAbstractItemView::NoEditTriggers);
        table->setSelectionMode(QAbstractItemView::SingleSelection);
        table->setTabKeyNavigation(false);
        table->setShowGrid(false);
        table->setCornerButtonEnabled(false);
        table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        table->setHorizontalHeaderLabels({columnCaptions[Your], columnCaptions[Frame2]});
        QStringList captions;
        for (const char* const caption : rowCaptions)
            captions.append(caption);
        table->setVerticalHeaderLabels(captions);
        for (QHeaderView* const headings : {table->horizontalHeader(), table->verticalHeader()}) {
            headings->setSectionsClickable(false);
            headings->setHighlightSections(false);
        }
        table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table->horizontalHeader()->setDefaultSectionSize(Theme::scaled(14 * Theme::grid));
        table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        table->verticalHeader()->setDefaultSectionSize(Theme::scaled(rowHeight));
        table->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        for (const Column column : {Your, Frame2}) {
            for (int row = 0; row < valueRows; ++row)
                table->setItem(row, column, newValue(row, column));
        }
        table->setFixedSize(table->verticalHeader()->sizeHint().width() + table->horizontalHeader()->length() + 2,
                            table->horizontalHeader()->sizeHint().height() + table->verticalHeader()->length() +
                                2 * Theme::grid);
        return table;
    }

    QTableWidgetItem* newValue(int row, Column column) const
    {
        const QString text =
            toQString(form_.sval[1 + static_cast<std::size_t>(row) + static_cast<std::size_t>(valueRows) * column]);
        auto* const value = new QTableWidgetItem(text);
        value->setTextAlignment(Qt::AlignCenter);
        value->setFont(Theme::font(14, true));
        value->setData(
            Qt::AccessibleTextRole,
            QString("%1, %2, %3").arg(columnCaptions[column], rowCaptions[row], text.isEmpty() ? tr("none") : text));
        if (column == Frame2 && !form_.isComputerGame())
            value->setFlags(Qt::NoItemFlags);
        return value;
    }

    const StatisticsForm& form_;
};

} // namespace

void GameWindows::show(const StatisticsForm& form)
{
    StatisticsDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
