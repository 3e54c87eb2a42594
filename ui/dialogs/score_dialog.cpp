#include "scores/score_form.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QFontDatabase>
#include <QFontInfo>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QShowEvent>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

/// A fixed-width font: this one, or the desktop's if it is not installed.
QFont listFont()
{
    QFont font("Courier New");
    if (!QFontInfo(font).fixedPitch())
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(Theme::scaled(16));
    return font;
}

/// Shows the tab of a score line as the gap between two columns.
class ScoreLineDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->fillRect(option.rect, index.data(Qt::BackgroundRole).value<QBrush>());
        const QString line = index.data().toString();
        const QRect row = option.rect.adjusted(Theme::gap, 0, -Theme::gap, 0);
        const int nameLeft = option.fontMetrics.horizontalAdvance("00000000");
        painter->setFont(option.font);
        painter->setPen(option.palette.color(QPalette::Text));
        painter->drawText(row, Qt::AlignVCenter, line.section('\t', 0, 0));
        const QRect place = row.adjusted(nameLeft, 0, 0, 0);
        const QString name = line.section('\t', 1);
        painter->drawText(place, Qt::AlignVCenter | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(name, Qt::ElideRight, place.width()));
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {option.fontMetrics.horizontalAdvance(QString(32, '0')), 4 * Theme::grid};
    }
};

class ScoreDialog : public FormDialog
{
public:
    ScoreDialog(Host& gameHost, ScoreForm& form)
        : FormDialog(gameHost, "ScoreForm", "LexiGrov Top 10 Scores"),
          form_(form),
          List2_(new QListWidget),
          AnotherGame_(newButton("AnotherGame", "New Game")),
          ExitProg_(newButton("ExitProg", "Exit Program")),
          CloseForm_(newButton("CloseForm", "Close"))
    {
        List2_->setObjectName("List2");
        List2_->setFont(listFont());
        List2_->setItemDelegate(new ScoreLineDelegate(List2_));
        List2_->setSelectionMode(QAbstractItemView::NoSelection);
        List2_->setFocusPolicy(Qt::NoFocus);
        List2_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        List2_->setMinimumSize(Theme::scaled(24 * Theme::grid), Theme::scaled(12 * Theme::grid));

        AnotherGame_->setProperty("primary", true);
        connect(AnotherGame_, &QPushButton::clicked, this, [this] { input([this] { form_.pressAnotherGame(); }); });
        connect(ExitProg_, &QPushButton::clicked, this, [this] { input([this] { form_.pressExitProg(); }); });
        connect(CloseForm_, &QPushButton::clicked, this, &QDialog::reject);

        connect(&host, &Host::modelsChanged, this,
                [this] { showForm(); }); // the list stands filled behind the name's box

        QVBoxLayout* const column = newColumn();
        column->addWidget(List2_);
        column->addLayout(newButtonRow({AnotherGame_, ExitProg_, CloseForm_}));
        resizeOnScreen(*this, 54 * Theme::grid, 54 * Theme::grid);
    }

protected:
    /// The form asks for the name while the list is visible.
    void showEvent(QShowEvent* event) override
    {
        FormDialog::showEvent(event);
        if (!event->spontaneous())
            QMetaObject::invokeMethod(
                this, [this] { input([this] { form_.activate(); }); }, Qt::QueuedConnection);
    }

    void showForm() override
    {
        if (!form_.isVisible()) {
            accept();
            return;
        }
        List2_->clear();
        for (const std::string& line : form_.List2)
            List2_->addItem(toQString(line));
        if (const auto own = form_.ownLine())
            List2_->item(static_cast<int>(*own))->setBackground(toQColor(host.theme.colours().cardSelection));
        AnotherGame_->setEnabled(form_.isEndOfGame());
        ExitProg_->setEnabled(form_.isEndOfGame());
        CloseForm_->setFocus();
    }

    void reject() override
    {
        input([this] { form_.pressCloseForm(); });
    }

private:
    ScoreForm& form_;
    QListWidget* List2_;
    QPushButton* AnotherGame_;
    QPushButton* ExitProg_;
    QPushButton* CloseForm_;
};

} // namespace

void GameWindows::show(ScoreForm& form)
{
    ScoreDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
