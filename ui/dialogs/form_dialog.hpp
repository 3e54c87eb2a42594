#pragma once

#include "ui/machine/host.hpp"

#include <QDialog>
#include <QScrollArea>

#include <concepts>
#include <string_view>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace lexigrove
{

/// A window for a form model, which the gate runs. The model holds the truth: inputs go to it through `input`, and the
/// window then shows what the model says.
class FormDialog : public QDialog
{
protected:
    FormDialog(Host& host, const char* objectName, std::string_view caption);

    template <std::invocable Action>
    void input(Action action)
    {
        host.gate.run(action);
        showForm();
    }

    /// Updates the widgets from the form; closes the window if the form is hidden.
    virtual void showForm() {}

    /// The window's layout: a column with the margins and gaps that all windows share.
    QVBoxLayout* newColumn();

    Host& host;
};

/// Resizes a window, to no more than the screen has. The measures are for a font of usual size.
void resizeOnScreen(QWidget& window, int width, int height);

/// The part of a window that scrolls where the screen has no room for it; the buttons stay below.
class ScrollPart : public QScrollArea
{
public:
    explicit ScrollPart(QWidget* content);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// A push button with its object name.
QPushButton* newButton(const char* objectName, std::string_view caption, std::string_view toolTip = {});

/// A row of buttons at the foot of a window: the first one, the main action, takes the most room.
QHBoxLayout* newButtonRow(std::initializer_list<QWidget*> buttons);

} // namespace lexigrove
