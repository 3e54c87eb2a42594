#pragma once

#include "ui/machine/host.hpp"

#include <QDialog>

#include <concepts>
#include <string_view>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace lexigrove
{

/// A modal window over a form model. The model is the truth: an input goes to it through `input`, and the window then
/// shows what the model says. It blocks the windows that it stands over and leaves the help window free.
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

    /// Puts into the widgets what the form says; closes the window when the form is hidden.
    virtual void showForm() = 0;

    /// The player closes the window with its frame or with Esc.
    virtual void closePressed() = 0;

    void reject() override { closePressed(); }

    /// A column with the margins and gaps that all windows share, the window's own layout.
    QVBoxLayout* newColumn();

    Host& host;
};

/// A push button with its object name.
QPushButton* newButton(const char* objectName, std::string_view caption, std::string_view toolTip = {});

/// A row of buttons at the foot of a window: the first one takes the most room, as the one that the window is for.
QHBoxLayout* newButtonRow(std::initializer_list<QWidget*> buttons);

} // namespace lexigrove
