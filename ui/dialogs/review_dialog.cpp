#include "record/review_form.hpp"
#include "ui/board/board_picture.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QButtonGroup>
#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>

namespace lexigrove
{

namespace
{

struct TurnColumn {
    const char* heading;
    Qt::Alignment alignment;
    bool isWord = false;
};
constexpr int turnColumns = 6;
const TurnColumn columns[turnColumns] = {{"#", Qt::AlignRight},         {"Who", Qt::AlignLeft},
                                         {"Word", Qt::AlignLeft, true}, {"Points", Qt::AlignRight},
                                         {"Best", Qt::AlignLeft, true}, {"Points", Qt::AlignRight}};

class ReviewDialog : public FormDialog
{
public:
    ReviewDialog(Host& gameHost, ReviewForm& form)
        : FormDialog(gameHost, "Review", form.caption()),
          form_(form),
          picture_(new BoardPicture(host.theme.scheme(), host.theme)),
          turns_(new QTableWidget(form.turnCount(), turnColumns)),
          there_(new QLabel),
          place_(new QLabel),
          lit_(new QButtonGroup(this))
    {
        form_.activate();
        auto* const left = new QVBoxLayout;
        left->setSpacing(Theme::gap);
        left->addWidget(picture_, 1);
        left->addLayout(newSteps());
        auto* const right = new QVBoxLayout;
        right->setSpacing(Theme::spacing);
        addSummary(*right);
        setUpTurns();
        right->addWidget(turns_, 1);
        right->addLayout(newSwitch());
        right->addLayout(newWords());
        auto* const areas = new QHBoxLayout;
        areas->setSpacing(Theme::margin);
        areas->addLayout(left, 3);
        areas->addLayout(right, 2);
        QVBoxLayout* const column = newColumn();
        column->addLayout(areas, 1);
        QPushButton* const meaning = newButton("Meaning", "Meaning", "Get meaning of the word whose path is lit");
        QPushButton* const close = newButton("Close", "Close");
        connect(meaning, &QPushButton::clicked, this, [this] { input([this] { form_.pressMeaning(); }); });
        connect(close, &QPushButton::clicked, this, [this] { reject(); });
        const QString summary = QString::fromStdString(form_.dailySummary());
        QPushButton* const copy =
            newButton("CopySummary", "Copy Summary", "Copy what tells others how this day's board went");
        connect(copy, &QPushButton::clicked, this, [summary] { QGuiApplication::clipboard()->setText(summary); });
        copy->setHidden(summary.isEmpty());
        column->addLayout(newButtonRow({copy, meaning, close}));
        fillTurns();
        showForm();
        turns_->setFocus();
        resizeOnScreen(*this, 124 * Theme::grid, 84 * Theme::grid);
    }

protected:
    void showForm() override
    {
        if (!form_.isVisible()) {
            accept();
            return;
        }
        showSummary();
        picture_->show(form_.board(), form_.litPath());
        place_->setText(form_.turn() == 0 ? tr("No word was made")
                                          : tr("Turn %1 of %2").arg(form_.turn()).arg(form_.turnCount()));
        there_->setText(toQString(form_.thereText()));
        first_->setEnabled(form_.hasPrevious());
        previous_->setEnabled(form_.hasPrevious());
        next_->setEnabled(form_.hasNext());
        last_->setEnabled(form_.hasNext());
        const char* const names[] = {"Made", "Best", "Longest"};
        for (int i = 0; i < 3; ++i) {
            const FoundWord word = form_.word(static_cast<ReviewForm::Lit>(i));
            QAbstractButton* const button = lit_->button(i);
            button->setText(word.word.empty() ? tr("%1: -").arg(names[i])
                                              : tr("%1: %2 (%3)").arg(names[i], toQString(word.word)).arg(word.score));
            button->setEnabled(!word.word.empty());
        }
        lit_->button(static_cast<int>(form_.lit()))->setChecked(true);
        if (turns_->currentRow() != form_.turn() - 1)
            turns_->selectRow(form_.turn() - 1);
    }

    void reject() override
    {
        input([this] { form_.pressClose(); });
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        switch (event->key()) {
        case Qt::Key_Left:
            return input([this] { form_.previous(); });
        case Qt::Key_Right:
            return input([this] { form_.next(); });
        case Qt::Key_Home:
            return input([this] { form_.first(); });
        case Qt::Key_End:
            return input([this] { form_.last(); });
        default:
            FormDialog::keyPressEvent(event);
        }
    }

    /// The arrow keys step through the game wherever the focus is; up and down are the list's own.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == turns_ && event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End) {
                keyPressEvent(static_cast<QKeyEvent*>(event));
                return true;
            }
        }
        return FormDialog::eventFilter(watched, event);
    }

private:
    template <std::invocable Step>
    QPushButton* newStep(const char* name, const char* caption, const char* toolTip, Step step)
    {
        QPushButton* const button = newButton(name, caption, toolTip);
        button->setAccessibleName(toolTip);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, [this, step] { input(step); });
        return button;
    }

    QHBoxLayout* newSteps()
    {
        first_ = newStep("First", "|<", "First turn (Home)", [this] { form_.first(); });
        previous_ = newStep("Previous", "<", "Previous turn (Left)", [this] { form_.previous(); });
        next_ = newStep("Next", ">", "Next turn (Right)", [this] { form_.next(); });
        last_ = newStep("Last", ">|", "Last turn (End)", [this] { form_.last(); });
        place_->setAlignment(Qt::AlignCenter);
        auto* const row = new QHBoxLayout;
        row->setSpacing(Theme::spacing);
        row->addWidget(first_);
        row->addWidget(previous_);
        row->addWidget(place_, 1);
        row->addWidget(next_);
        row->addWidget(last_);
        return row;
    }

    static QLabel* newText(QVBoxLayout& column, bool quiet)
    {
        auto* const label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setProperty("quiet", quiet);
        column.addWidget(label);
        return label;
    }

    void addSummary(QVBoxLayout& column)
    {
        summary_ = newText(column, false);
        summary_->setObjectName("Summary");
        summary_->setFont(Theme::font(16, true));
        for (std::size_t i = 0; i < left_.size(); ++i) {
            auto* const link = left_[i] = new QPushButton;
            link->setProperty("link", true);
            link->setToolTip(tr("Show this turn with its best word"));
            connect(link, &QPushButton::clicked, this, [this, i] {
                input([this, i] {
                    form_.goTo(form_.mostLeftBehind().at(i).turn);
                    form_.light(ReviewForm::Lit::Best);
                });
            });
            column.addWidget(link);
        }
        rarest_ = newText(column, true);
        notice_ = newText(column, true);
    }

    /// What the chosen list says of the whole game.
    void showSummary()
    {
        summary_->setText(toQString(form_.summary()));
        const std::vector<ReviewForm::TurnRow> left = form_.mostLeftBehind();
        for (std::size_t i = 0; i < left_.size(); ++i) {
            left_[i]->setVisible(i < left.size());
            if (i < left.size())
                left_[i]->setText(toQString(ReviewForm::textOf(left[i])));
        }
        rarest_->setText(toQString(form_.rarestText()));
        notice_->setText(toQString(form_.notice()));
        for (QLabel* const text : {rarest_, notice_})
            text->setHidden(text->text().isEmpty());
    }

    void setUpTurns()
    {
        turns_->setObjectName("Turns");
        turns_->setAccessibleName(tr("Turns"));
        turns_->setSelectionBehavior(QAbstractItemView::SelectRows);
        turns_->setSelectionMode(QAbstractItemView::SingleSelection);
        turns_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        turns_->setTabKeyNavigation(false);
        turns_->setShowGrid(false);
        turns_->verticalHeader()->hide();
        turns_->installEventFilter(this);
        QStringList headings;
        for (const TurnColumn& column : columns)
            headings.append(column.heading);
        turns_->setHorizontalHeaderLabels(headings);
        for (int column = 0; column < turnColumns; ++column) // the words share what the others leave
            turns_->horizontalHeader()->setSectionResizeMode(
                column, columns[column].isWord ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
        connect(turns_, &QTableWidget::currentCellChanged, this, [this](int row) {
            if (row >= 0 && row + 1 != form_.turn())
                input([this, row] { form_.goTo(row + 1); });
        });
    }

    void fillTurns()
    {
        int row = 0;
        for (const ReviewForm::TurnRow& turn : form_.rows()) {
            const QString cells[turnColumns] = {QString::number(turn.turn), toQString(turn.maker),
                                                toQString(turn.word),       QString::number(turn.score),
                                                toQString(turn.bestWord),   QString::number(turn.bestScore)};
            for (int column = 0; column < turnColumns; ++column) {
                auto* const item = new QTableWidgetItem(cells[column]);
                item->setTextAlignment(columns[column].alignment | Qt::AlignVCenter);
                turns_->setItem(row, column, item);
            }
            ++row;
        }
    }

    /// Whose words count: the game's own list or the largest one.
    QHBoxLayout* newSwitch()
    {
        auto* const row = new QHBoxLayout;
        row->addWidget(there_, 1);
        if (!form_.hasTwoLists())
            return row;
        for (const ReviewList list : {ReviewList::Own, ReviewList::LevelThree}) {
            auto* const choice =
                new QRadioButton(toQString(ReviewForm::textOf(list, form_.review().record().start.level)));
            choice->setObjectName(list == ReviewList::Own ? "OwnList" : "LevelThree");
            choice->setChecked(form_.list() == list);
            connect(choice, &QRadioButton::clicked, this, [this, list] {
                input([this, list] { form_.choose(list); });
                fillTurns();
            });
            row->addWidget(choice);
        }
        return row;
    }

    /// The words of the turn; a click lights a word's path.
    QVBoxLayout* newWords()
    {
        auto* const column = new QVBoxLayout;
        column->setSpacing(Theme::spacing / 2);
        const char* const names[] = {"MadeWord", "BestWord", "LongestWord"};
        for (int i = 0; i < 3; ++i) {
            auto* const button = new QRadioButton;
            button->setObjectName(names[i]);
            button->setToolTip(tr("Show the path of this word"));
            lit_->addButton(button, i);
            connect(button, &QRadioButton::clicked, this,
                    [this, i] { input([this, i] { form_.light(static_cast<ReviewForm::Lit>(i)); }); });
            column->addWidget(button);
        }
        return column;
    }

    ReviewForm& form_;
    BoardPicture* picture_;
    QLabel* summary_ = nullptr;
    std::array<QPushButton*, 3> left_{}; ///< to the turns with most left behind
    QLabel* rarest_ = nullptr;
    QLabel* notice_ = nullptr;
    QTableWidget* turns_;
    QLabel* there_;
    QLabel* place_;
    QButtonGroup* lit_;
    QPushButton* first_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* last_ = nullptr;
};

} // namespace

void GameWindows::show(ReviewForm& form)
{
    ReviewDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
