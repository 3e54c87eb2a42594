#include "settings/options_form.hpp"
#include "ui/dialogs/box_button.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/dialogs/scheme_preview.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/arrow_box.hpp"
#include "ui/look/text.hpp"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <functional>
#include <utility>
#include <vector>

namespace lexigrove
{

namespace
{

/// A radio button or check box that reports what was done to it and leaves the meaning to the form: it was `selected`
/// by any means, or any mouse button was `released` over it, as which a choice by other means counts.
template <typename Button>
class ChoiceButton : public Button
{
public:
    explicit ChoiceButton(const QString& caption) : Button(caption)
    {
        // What assistive tools toggle passes by `nextCheckState`.
        QObject::connect(this, &Button::toggled, this, [this](bool on) {
            if (on || !this->autoExclusive()) // the radio button that gives way says nothing
                nextCheckState();
        });
    }

    std::function<void()> selected;
    std::function<void()> released;

    void showValue(bool value)
    {
        const QSignalBlocker quiet(this);
        const bool exclusive = this->autoExclusive();
        this->setAutoExclusive(false); // otherwise the selected one could not be cleared
        this->setChecked(value);
        this->setAutoExclusive(exclusive);
        if constexpr (std::is_same_v<Button, QRadioButton>) // the Tab key enters a group at the chosen one
            this->setFocusPolicy(value ? Qt::StrongFocus : Qt::ClickFocus);
    }

protected:
    /// Keys and assistive tools have no button to release: with them the choice is the release.
    void nextCheckState() override
    {
        selected();
        if (!byMouse_)
            released();
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const bool over = this->hitButton(event->position().toPoint());
        byMouse_ = true;
        Button::mouseReleaseEvent(event);
        byMouse_ = false;
        if (over)
            released();
    }

private:
    bool byMouse_ = false;
};

/// The combo box of the schemes: it reports when its list is closed.
class SchemeBox : public ArrowBox
{
public:
    using ArrowBox::ArrowBox;

    std::function<void()> closed;

    void hidePopup() override
    {
        ArrowBox::hidePopup();
        closed();
    }
};

/// The listed schemes are only previewed: one that cannot be read is reported when it is chosen.
class NoDialogs : public Dialogs
{
public:
    void message(const std::string&) override {}
    bool confirm(const std::string&) override { return false; }
    std::string input(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string openFile(const OpenFileRequest&) override { return {}; }
};

void showColour(QWidget& widget, QPalette::ColorRole role, const QColor& colour)
{
    QPalette palette = widget.palette();
    palette.setColor(role, colour);
    widget.setPalette(palette);
}

class OptionsDialog : public FormDialog
{
public:
    OptionsDialog(Host& gameHost, OptionsForm& form)
        : FormDialog(gameHost, "Form7", form.Caption),
          form_(form),
          Combo1_(new SchemeBox(gameHost.theme)),
          preview_(new SchemePreview(gameHost.theme)),
          UsrDictName_(new QLineEdit),
          GetUserDictName_(new BoxButton(form.GetUserDictName, gameHost.theme)),
          pace_(new ArrowBox(gameHost.theme))
    {
        setUpSchemeBox();
        setUpUserDictionary();

        auto* const choices = new QWidget;
        auto* const rows = new QVBoxLayout(choices);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(Theme::gap);
        auto* const columns = new QHBoxLayout;
        columns->setSpacing(Theme::gap);
        columns->addLayout(newFrames({newFrame(form.SoundFrame), newFrame(form.ArrangementFrame),
                                      newFrame(form.DropFrame), newFrame(form.MeaningsFrame)}));
        columns->addLayout(newFrames({newSchemeFrame(), newDictionaryFrame(), newComputerFrame(), newStrategyFrame()}));

        rows->addLayout(columns);
        rows->addWidget(newPlayingFrame());
        rows->addStretch(1); // a larger window leaves the groups their sizes
        auto* const column = newColumn();
        column->addWidget(new ScrollPart(choices));
        column->addLayout(newButtons());
        findChild<QPushButton*>("Startx")->setFocus();
        showForm();
    }

protected:
    void showForm() override
    {
        if (!form_.isVisible()) {
            accept();
            return;
        }
        for (const auto& show : shown_)
            show();
        Combo1_->setCurrentIndex(Combo1_->findText(pathToQString(form_.Combo1.Text)));
        showColour(*Combo1_, QPalette::Base, host.theme.colour(form_.Combo1.backColor));
        preview_->setScheme(form_.scheme());
        showText(*UsrDictName_, form_.UsrDictName);
        missing_->setVisible(form_.lacksUserDictionary());
        GetUserDictName_->synchronise();
    }

    void reject() override
    {
        input([this] { form_.pressExit(); });
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Escape)
            FormDialog::keyPressEvent(event);
    }

private:
    static void showText(QLineEdit& edit, const TextBox& box)
    {
        if (edit.text() != pathToQString(box.Text)) // the cursor stays put while the player types
            edit.setText(pathToQString(box.Text));
        edit.setToolTip(pathToQString(box.ToolTipText));
        edit.setEnabled(box.Enabled);
    }

    template <typename Button>
    Button* newChoice(Choice& choice)
    {
        auto* const button = new ChoiceButton<Button>(toQString(choice.Caption));
        button->setObjectName(toQString(choice.name));
        // A check box toggles with every click, an option button only turns on; the form clears the others.
        button->selected = [this, &choice] {
            input([&] { form_.setValue(choice, std::is_same_v<Button, QRadioButton> || !choice.Value); });
        };
        button->released = [this, &choice] { input([&] { form_.mouseReleased(choice); }); };
        shown_.emplace_back([button, &choice] { button->showValue(choice.Value); });
        return button;
    }

    QGroupBox* newFrame(ChoiceFrame& frame)
    {
        auto* const box = new QGroupBox(toQString(frame.Caption), this);
        box->setToolTip(toQString(frame.ToolTipText));
        auto* const choices = new QVBoxLayout(box);
        choices->setSpacing(Theme::spacing);
        for (Choice* const choice : frame.choices)
            choices->addWidget(newChoice<QRadioButton>(*choice));
        shown_.emplace_back([box, &frame] { box->setEnabled(frame.Enabled); });
        return box;
    }

    QGroupBox* newSchemeFrame()
    {
        QGroupBox* const box = newFrame(form_.SchemeFrame);
        box->layout()->addWidget(preview_); // above the box, whose list opens downwards
        box->layout()->addWidget(Combo1_);
        shown_.emplace_back(
            [this, box] { showColour(*box, QPalette::Window, host.theme.colour(form_.SchemeFrame.backColor)); });
        return box;
    }

    /// The name of the player's own dictionary is beside its choice, the last one.
    QGroupBox* newDictionaryFrame()
    {
        QGroupBox* const box = newFrame(form_.DictionaryFrame);
        auto* const choices = static_cast<QBoxLayout*>(box->layout());
        auto* const Option2 = box->findChild<QWidget*>("Option2");
        choices->removeWidget(Option2);
        auto* const custom = new QHBoxLayout;
        custom->setSpacing(Theme::spacing);
        custom->addWidget(Option2);
        custom->addWidget(UsrDictName_, 1);
        custom->addWidget(GetUserDictName_);
        choices->addLayout(custom);
        missing_->setObjectName("MissingDictionary");
        choices->addWidget(missing_);
        return box;
    }

    QGroupBox* newComputerFrame()
    {
        QGroupBox* const box = newFrame(form_.ComputerFrame);
        auto* const yes = newChoice<QCheckBox>(form_.Check1);
        yes->setAccessibleName(toQString(form_.ComputerFrame.Caption)); // "YES" says nothing alone
        yes->setToolTip(toQString(form_.ComputerFrame.ToolTipText));
        box->layout()->addWidget(yes);
        return box;
    }

    /// How strong each strategy is.
    QGroupBox* newStrategyFrame()
    {
        QGroupBox* const box = newFrame(form_.StrategyFrame);
        box->findChild<QWidget*>("Option14")->setToolTip(tr("The weakest: a word by chance"));
        box->findChild<QWidget*>("Option13")->setToolTip(tr("Loses to a practised player"));
        box->findChild<QWidget*>("Option12")
            ->setToolTip(tr("The strongest: beaten by those who see nearly everything"));
        return box;
    }

    static QVBoxLayout* newFrames(std::initializer_list<QGroupBox*> frames)
    {
        auto* const column = new QVBoxLayout;
        column->setSpacing(Theme::gap);
        for (QGroupBox* const frame : frames)
            column->addWidget(frame);
        return column;
    }

    void setUpSchemeBox()
    {
        Combo1_->setObjectName("Combo1");
        Combo1_->setAccessibleName(toQString(form_.SchemeFrame.Caption));
        Combo1_->setToolTip(tr("The colours of everything: each file is a scheme"));
        Combo1_->setPlaceholderText(pathToQString(form_.Combo1.Text));
        Combo1_->setIconSize(SchemePreview::iconSize);
        for (const std::string& name : form_.Combo1.list) {
            ColourScheme& scheme = listed_.emplace_back(form_.folder(), noDialogs_);
            scheme.load(name);
            Combo1_->addItem(SchemePreview::icon(scheme, devicePixelRatio()), pathToQString(name));
        }
        connect(Combo1_, &QComboBox::highlighted, this,
                [this](int index) { preview_->setScheme(listed_.at(static_cast<std::size_t>(index))); });
        connect(Combo1_, &QComboBox::textActivated, this, [this](const QString& name) {
            input([&] { form_.chooseScheme(pathFromQString(name)); });
            emit host.modelsChanged();
        });
        Combo1_->closed = [this] { preview_->setScheme(form_.scheme()); };
    }

    void setUpUserDictionary()
    {
        UsrDictName_->setObjectName("UsrDictName");
        UsrDictName_->setAccessibleName(tr("File of your own dictionary"));
        connect(UsrDictName_, &QLineEdit::textEdited, this,
                [this](const QString& text) { input([&] { form_.typeUserDictName(pathFromQString(text)); }); });
        GetUserDictName_->setObjectName("GetUserDictName");
        GetUserDictName_->setAccessibleName(tr("Choose the file of your own dictionary"));
        connect(GetUserDictName_, &QAbstractButton::clicked, this,
                [this] { input([this] { form_.browseUserDictionary(); }); });
    }

    /// What the configuration has no line for.
    QGroupBox* newPlayingFrame()
    {
        auto* const box = new QGroupBox(tr("While You Play"), this);
        auto* const rows = new QVBoxLayout(box);
        auto* const row = new QHBoxLayout;
        rows->addLayout(row);
        rows->addLayout(newOpponentRow());
        row->setSpacing(Theme::gap);
        auto* const pauses = new QCheckBox(tr("Pause when the window is left"));
        pauses->setObjectName("PauseWhenLeft");
        pauses->setChecked(host.settings.pausesWhenLeft());
        connect(pauses, &QCheckBox::toggled, this, [this](bool on) { host.settings.setPausesWhenLeft(on); });
        pace_->setObjectName("Pace");
        pace_->setAccessibleName(tr("Pace of the animation"));
        pace_->addItems({tr("Slow"), tr("Medium"), tr("Fast")});
        pace_->setCurrentIndex(static_cast<int>(host.settings.pace()));
        pace_->setToolTip(tr("How fast letters move with \"Animation\""));
        connect(pace_, &QComboBox::activated, this, [this](int pace) {
            host.settings.setPace(static_cast<SettingsFile::Pace>(pace));
            paceChosen_ = true;
        });
        auto* const caption = new QLabel(tr("Pace of the animation"));
        caption->setBuddy(pace_);
        row->addWidget(pauses);
        row->addStretch(1);
        row->addWidget(caption);
        row->addWidget(pace_);
        return box;
    }

    /// What makes a game easier: a computer that knows fewer words, no red tiles.
    QHBoxLayout* newOpponentRow()
    {
        auto* const relaxed = new QCheckBox(tr("Relaxed: no red tiles, no pushes"));
        relaxed->setObjectName("Relaxed");
        relaxed->setToolTip(tr("For a quiet game alone; it is not recorded"));
        relaxed->setChecked(host.settings.pressure() == Pressure::Relaxed);
        connect(relaxed, &QCheckBox::toggled, this,
                [this](bool on) { host.settings.setPressure(on ? Pressure::Relaxed : Pressure::On); });
        auto* const knows = new ArrowBox(host.theme);
        knows->setObjectName("ComputerKnows");
        knows->setAccessibleName(tr("The computer knows"));
        knows->addItems({tr("Every word"), tr("Common words"), tr("Simple words")});
        knows->setCurrentIndex(static_cast<int>(host.settings.vocabulary()));
        knows->setToolTip(tr("Of your dictionary the computer knows all words, those of level 2, or those of level 1: "
                             "the fewer, the weaker it is"));
        connect(knows, &QComboBox::activated, this,
                [this](int choice) { host.settings.setVocabulary(static_cast<Vocabulary>(choice)); });
        auto* const caption = new QLabel(tr("The computer knows"));
        caption->setBuddy(knows);
        auto* const row = new QHBoxLayout;
        row->setSpacing(Theme::gap);
        row->addWidget(relaxed);
        row->addStretch(1);
        row->addWidget(caption);
        row->addWidget(knows);
        return row;
    }

    /// An animation that was just switched on has no delay yet.
    void start()
    {
        form_.settings.vocabulary = host.settings.vocabulary();
        form_.settings.pressure = host.settings.pressure();
        if (form_.animates() && (paceChosen_ || form_.settings.dropDelay == 0))
            form_.settings.dropDelay = SettingsFile::delayOf(host.settings.pace());
        form_.pressStart();
    }

    QHBoxLayout* newButtons()
    {
        auto* const Startx = newButton("Startx", form_.Startx.Caption, form_.Startx.ToolTipText);
        auto* const PSBoard = newButton("PSBoard", form_.PSBoard.Caption, form_.PSBoard.ToolTipText);
        auto* const Exitx = newButton("Exitx", form_.Exitx.Caption, form_.Exitx.ToolTipText);
        Startx->setProperty("primary", true);
        Startx->setDefault(true);
        connect(Startx, &QPushButton::clicked, this, [this] { input([this] { start(); }); });
        connect(PSBoard, &QPushButton::clicked, this, [this] { input([this] { form_.presetBoard(); }); });
        connect(Exitx, &QPushButton::clicked, this, [this] { reject(); });
        if (!form_.offersLookBack())
            return newButtonRow({Startx, PSBoard, Exitx});
        auto* const LookBack = newButton("LookBack", "Look back", "Turn by turn through the game that is over");
        connect(LookBack, &QPushButton::clicked, this, [this] { input([this] { form_.pressLookBack(); }); });
        return newButtonRow({Startx, LookBack, PSBoard, Exitx});
    }

    OptionsForm& form_;
    SchemeBox* Combo1_;
    SchemePreview* preview_;
    QLineEdit* UsrDictName_;
    BoxButton* GetUserDictName_;
    QLabel* missing_ = new QLabel("There is no such file: a game cannot start with it.");
    ArrowBox* pace_;
    bool paceChosen_ = false;
    NoDialogs noDialogs_;
    std::vector<ColourScheme> listed_;         ///< the schemes of the box
    std::vector<std::function<void()>> shown_; ///< each shows one control of the form
};

} // namespace

void GameWindows::show(OptionsForm& form)
{
    OptionsDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
