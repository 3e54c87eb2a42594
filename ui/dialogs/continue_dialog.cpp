#include "record/continue_form.hpp"
#include "ui/board/board_picture.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

class ContinueDialog : public FormDialog
{
public:
    ContinueDialog(Host& gameHost, ContinueForm& form) : FormDialog(gameHost, "ContinueForm", "LexiGrove"), form_(form)
    {
        auto* const picture = new BoardPicture(host.theme.scheme(), host.theme);
        picture->show(form.game.position.board, form.game.position.path);
        picture->setAccessibleName("The board of the last game");

        auto* const question = new QLabel(ContinueForm::question);
        question->setFont(Theme::font(20, true));
        const GameState& state = form.game.position.state;
        QString score = QString("Your score: %1").arg(state.yourScore);
        if (state.computerGame)
            score += QString("\nThe computer: %1").arg(state.compScore);
        auto* const facts = new QLabel(score + "\nKept on " + toQString(form.game.date));
        facts->setTextFormat(Qt::PlainText);
        QPushButton* const yes = newButton("Yes", "Continue", "Go on where the game was left");
        QPushButton* const no = newButton("No", "New Game", "Begin anew; the game that was kept is gone");
        yes->setProperty("primary", true);
        yes->setDefault(true);
        connect(yes, &QPushButton::clicked, this, [this] { answer(true); });
        connect(no, &QPushButton::clicked, this, [this] { answer(false); });

        auto* const side = new QVBoxLayout;
        side->setSpacing(Theme::gap);
        side->addWidget(question);
        side->addWidget(facts);
        side->addStretch();
        side->addWidget(yes);
        side->addWidget(no);
        auto* const areas = new QHBoxLayout;
        areas->setSpacing(Theme::margin);
        areas->addWidget(picture, 1);
        areas->addLayout(side);
        newColumn()->addLayout(areas);
    }

protected:
    void showForm() override {}
    void reject() override { answer(false); }

private:
    void answer(bool accepted)
    {
        form_.accepted = accepted;
        accept();
    }

    ContinueForm& form_;
};

} // namespace

void GameWindows::show(ContinueForm& form)
{
    ContinueDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
