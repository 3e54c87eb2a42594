#include "dictionary/maintenance.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QAbstractListModel>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>
#include <functional>

namespace lexigrove
{

namespace
{

using maintenance_text::ControlText;

/// The rows of a `FilteredWords` for a list widget. It stores no items or texts itself.
class WordListModel : public QAbstractListModel
{
public:
    explicit WordListModel(const FilteredWords& words) : words_(words) {}

    /// The words were filled, cleared or searched.
    void refresh()
    {
        beginResetModel();
        shownRows_ = words_.rowCount();
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : shownRows_; }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::SizeHintRole) // some padding, and all of the same height
            return QSize(0, 3 * Theme::grid);
        // In the middle of an operation there can be fewer words than rows still shown.
        if (role != Qt::DisplayRole || !index.isValid() || index.row() >= words_.rowCount())
            return {};
        return toQString(words_.row(index.row()));
    }

private:
    const FilteredWords& words_;
    int shownRows_ = 0;
};

class MaintenanceDialog : public FormDialog
{
public:
    MaintenanceDialog(Host& gameHost, DictionaryMaintenance& form)
        : FormDialog(gameHost, "DictionaryMaintenance", maintenance_text::title),
          form_(form),
          words_(form.List1),
          search_(new QLineEdit),
          List1_(new QListView),
          count_(new QLabel),
          Text1_(new QLineEdit)
    {
        auto* const areas = new QHBoxLayout;
        areas->setSpacing(Theme::gap);
        areas->addWidget(newWordsFrame(), 1);
        auto* const side = new QVBoxLayout;
        side->setSpacing(Theme::gap);
        side->addWidget(newEditFrame());
        auto* const buttons = new QVBoxLayout;
        buttons->setSpacing(Theme::spacing);
        for (QPushButton* const button :
             {newButton(maintenance_text::Command1, &DictionaryMaintenance::showDictionary),
              newButton(maintenance_text::Command2, &DictionaryMaintenance::spellCheck),
              newButton(maintenance_text::plainList, &DictionaryMaintenance::writePlainList)})
            buttons->addWidget(button);
        side->addLayout(buttons);
        side->addStretch();
        side->addWidget(newExitButton());
        areas->addLayout(side);
        newColumn()->addLayout(areas);
        resizeOnScreen(*this, 72 * Theme::grid, 64 * Theme::grid);

        input([this] { form_.activate(); });
        Text1_->setFocus();
    }

protected:
    void showForm() override
    {
        words_.refresh();
        const QLocale locale;
        const QString all = locale.toString(form_.List1.ListCount());
        count_->setText(form_.List1.search().empty()
                            ? QString("%1 words").arg(all)
                            : QString("%1 of %2 words").arg(locale.toString(form_.List1.rowCount()), all));
        if (Text1_->text() != toQString(form_.Text1))
            Text1_->setText(toQString(form_.Text1));
        const std::array<const DictionaryMaintenance::Option*, 3> options{&form_.Option1, &form_.Option2,
                                                                          &form_.Option3};
        for (std::size_t i = 0; i < options.size(); ++i) {
            options_[i]->setAutoExclusive(false); // the form says which one is on, if any
            options_[i]->setChecked(options[i]->Value);
            options_[i]->setAutoExclusive(true);
            options_[i]->setEnabled(options[i]->Enabled);
        }
    }

    void reject() override
    {
        input([this] { form_.exit(); });
        accept();
    }

private:
    QPushButton* newButton(const ControlText& text, void (DictionaryMaintenance::*operation)())
    {
        QPushButton* const button = lexigrove::newButton(text.name.data(), text.caption, text.toolTip);
        button->setAutoDefault(false); // Enter in the search box must not rewrite a dictionary
        connect(button, &QPushButton::clicked, this, [this, operation] { input(std::bind_front(operation, &form_)); });
        return button;
    }

    QPushButton* newExitButton()
    {
        QPushButton* const button = newButton(maintenance_text::Command4, &DictionaryMaintenance::exit);
        connect(button, &QPushButton::clicked, this, &QDialog::accept);
        return button;
    }

    static QGroupBox* newFrame(const ControlText& text)
    {
        auto* const frame = new QGroupBox(toQString(text.caption));
        frame->setObjectName(toQString(text.name));
        return frame;
    }

    QGroupBox* newWordsFrame()
    {
        search_->setObjectName("Search");
        search_->setPlaceholderText("Search");
        search_->setClearButtonEnabled(true);
        connect(search_, &QLineEdit::textChanged, this,
                [this](const QString& text) { input([&] { form_.List1.setSearch(fromQString(text)); }); });
        List1_->setObjectName("List1");
        List1_->setModel(&words_);
        List1_->setUniformItemSizes(true);
        List1_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        connect(List1_, &QListView::clicked, this, [this](const QModelIndex& index) { pick(index); });
        // The arrow keys select. The focus alone also makes a row current, but must not change the word being edited.
        connect(List1_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this](const QItemSelection& selected) {
                    if (!selected.isEmpty())
                        pick(selected.indexes().constFirst());
                });
        count_->setObjectName("Count");
        count_->setProperty("quiet", true);

        QGroupBox* const frame = newFrame(maintenance_text::Frame2);
        auto* const rows = new QVBoxLayout(frame);
        rows->setSpacing(Theme::spacing);
        rows->addWidget(search_);
        rows->addWidget(List1_, 1);
        rows->addWidget(count_);
        return frame;
    }

    QGroupBox* newEditFrame()
    {
        Text1_->setObjectName("Text1");
        connect(Text1_, &QLineEdit::textEdited, this, [this](const QString& text) { form_.Text1 = fromQString(text); });

        QGroupBox* const frame = newFrame(maintenance_text::Frame1);
        auto* const rows = new QVBoxLayout(frame);
        rows->setSpacing(Theme::spacing);
        rows->addWidget(Text1_);
        auto* const levels = new QHBoxLayout;
        levels->setSpacing(Theme::gap);
        int level = 0;
        for (const ControlText& text :
             {maintenance_text::Option1, maintenance_text::Option2, maintenance_text::Option3}) {
            auto* const option = new QRadioButton(toQString(text.caption));
            option->setObjectName(toQString(text.name));
            options_.at(static_cast<std::size_t>(level)) = option;
            ++level;
            connect(option, &QRadioButton::clicked, this, [this, level] { input([&] { form_.chooseOption(level); }); });
            levels->addWidget(option);
        }
        rows->addLayout(levels);
        auto* const buttons = new QHBoxLayout;
        buttons->setSpacing(Theme::spacing);
        buttons->addWidget(newButton(maintenance_text::Addwordx, &DictionaryMaintenance::addWord));
        buttons->addWidget(newButton(maintenance_text::Removewordx, &DictionaryMaintenance::removeWord));
        rows->addLayout(buttons);
        return frame;
    }

    /// A row of the list is clicked, or reached with the arrow keys. The list does not change, so it is not refilled.
    void pick(const QModelIndex& index)
    {
        form_.clickRow(index.row());
        Text1_->setText(toQString(form_.Text1));
    }

    DictionaryMaintenance& form_;
    WordListModel words_;
    QLineEdit* search_;
    QListView* List1_;
    QLabel* count_;
    QLineEdit* Text1_;
    std::array<QRadioButton*, 3> options_{};
};

} // namespace

void GameWindows::show(DictionaryMaintenance& form)
{
    MaintenanceDialog dialog(host_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
