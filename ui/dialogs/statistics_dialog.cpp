#include "scores/statistics_form.hpp"
#include "ui/dialogs/chart_view.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

constexpr int rowHeight = 28;
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
        auto* const areas = new QHBoxLayout;
        areas->setSpacing(Theme::gap);
        areas->addLayout(newCaptions());
        areas->addWidget(newValues("YourColumn", "Your", 1));
        areas->addWidget(newValues("Frame2", "Computer", 9));
        areas->addSpacing(Theme::grid);
        areas->addWidget(new ChartView(form, gameHost.theme), 0, Qt::AlignTop);

        auto* const Exitx = newButton("Exitx", "Exit");
        Exitx->setDefault(true);
        Exitx->setMinimumWidth(Theme::scaled(14 * Theme::grid));
        connect(Exitx, &QPushButton::clicked, this, &QDialog::accept);

        QVBoxLayout* const column = newColumn();
        column->addLayout(areas);
        column->addWidget(Exitx, 0, Qt::AlignRight);
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    }

private:
    static QLabel* newLabel(const QString& text, Qt::Alignment alignment)
    {
        auto* const label = new QLabel(text);
        label->setFixedHeight(Theme::scaled(rowHeight));
        label->setAlignment(alignment | Qt::AlignVCenter);
        label->setTextFormat(Qt::PlainText);
        return label;
    }

    static QVBoxLayout* newCaptions()
    {
        auto* const rows = new QVBoxLayout;
        rows->setContentsMargins(0, Theme::grid, 0, Theme::grid);
        rows->setSpacing(0);
        rows->addWidget(newLabel("", Qt::AlignLeft));
        for (const char* const caption : rowCaptions)
            rows->addWidget(newLabel(caption, Qt::AlignLeft));
        rows->addStretch();
        return rows;
    }

    /// The heading and eight of the value labels.
    QFrame* newValues(const char* objectName, const char* heading, std::size_t first) const
    {
        auto* const column = new QFrame;
        column->setObjectName(objectName);
        column->setProperty("card", true);
        column->setMinimumWidth(Theme::scaled(14 * Theme::grid));
        auto* const rows = new QVBoxLayout(column);
        rows->setContentsMargins(Theme::gap, Theme::grid, Theme::gap, Theme::grid);
        rows->setSpacing(0);
        QLabel* const title = newLabel(heading, Qt::AlignHCenter);
        title->setProperty("quiet", true);
        rows->addWidget(title);
        for (std::size_t i = first; i < first + 8; ++i) {
            QLabel* const value = newLabel(toQString(form_.sval[i]), Qt::AlignHCenter);
            value->setObjectName("sval" + QString::number(i));
            value->setFont(Theme::font(14, true));
            value->setAccessibleName(QString("%1, %2, %3").arg(heading, rowCaptions[i - first], value->text()));
            rows->addWidget(value);
        }
        rows->addStretch();
        column->setEnabled(first == 1 || form_.isComputerGame());
        return column;
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
