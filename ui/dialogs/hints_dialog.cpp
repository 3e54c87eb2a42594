#include "opponent/hints_form.hpp"
#include "ui/dialogs/beside.hpp"
#include "ui/dialogs/box_button.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"
#include "ui/look/words_view.hpp"

#include <QScreen>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

class HintsDialog : public FormDialog
{
public:
    HintsDialog(Host& gameHost, HintsForm& form)
        : FormDialog(gameHost, "Form2", form.Caption),
          form_(form),
          WordsMade_(new WordsView(form.WordsMade, gameHost.theme, this, &WindowColours::computerText)),
          Select_(newBox(form.BoxControl2, "BoxControl2")),
          Meaning_(newBox(form.Meaning, "Meaning")),
          Close_(newBox(form.BoxControl1, "BoxControl1"))
    {
        WordsMade_->setObjectName("WordsMade");
        connect(WordsMade_, &WordsView::headingClicked, this,
                [this](int x) { play([this, x] { form_.headingClicked(x); }); });
        connect(WordsMade_, &WordsView::rowPicked, this,
                [this](int row) { play([this, row] { form_.pickRow(row); }); });
        connect(WordsMade_, &WordsView::rowActivated, this, [this](int row) {
            play([this, row] {
                form_.pickRow(row);
                form_.pressSelect();
            });
        });
        connect(Select_, &QAbstractButton::clicked, this, [this] { play([this] { form_.pressSelect(); }); });
        connect(Meaning_, &QAbstractButton::clicked, this, [this] { play([this] { form_.pressMeaning(); }); });
        connect(Close_, &QAbstractButton::clicked, this, &QDialog::reject);

        QVBoxLayout* const column = newColumn();
        column->setContentsMargins(Theme::gap, Theme::gap, Theme::gap, Theme::gap);
        column->addWidget(WordsMade_, 1);
        column->addLayout(newButtonRow({Select_, Meaning_, Close_}));
        WordsMade_->setFocus();
        if (form_.WordsMade.Rows() > 1)
            form_.pickRow(1);
        showForm();
        placeBesideBoard();
    }

protected:
    void showForm() override
    {
        if (!form_.isVisible()) {
            accept();
            return;
        }
        WordsMade_->synchronise();
        for (BoxButton* const button : {Select_, Meaning_, Close_})
            button->synchronise();
    }

    void reject() override
    {
        play([this] { form_.pressClose(); });
    }

private:
    /// An input that changes what the board behind shows.
    template <std::invocable Action>
    void play(Action action)
    {
        input(action);
        emit host.modelsChanged();
    }

    BoxButton* newBox(BoxControl& control, const char* objectName)
    {
        auto* const button = new BoxButton(control, host.theme, this);
        button->setObjectName(objectName);
        return button;
    }

    void placeBesideBoard()
    {
        const QWidget* const main = host.mainWindow;
        const QWidget* const board = main != nullptr ? main->findChild<QWidget*>("Picture1") : nullptr;
        if (board == nullptr)
            return;
        const QRect place(board->mapToGlobal(QPoint(0, 0)), board->size());
        resize(Theme::scaled(44 * Theme::grid), place.height());
        setGeometry(beside(place, size(), main->screen()->availableGeometry()));
    }

    HintsForm& form_;
    WordsView* WordsMade_;
    BoxButton* Select_;
    BoxButton* Meaning_;
    BoxButton* Close_;
};

} // namespace

void GameWindows::show(HintsForm& form)
{
    HintsDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
