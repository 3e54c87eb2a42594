#pragma once

#include "ui/look/theme.hpp"
#include "ui/machine/event_gate.hpp"

class QWidget;

namespace lexigrove
{

/// What shows the models: the main window.
class ModelsView
{
public:
    virtual ~ModelsView() = default;

    /// Shows whatever has changed in the models, including the application's colours.
    virtual void showModels() = 0;

    /// An input or a tick of the game has ended.
    virtual void inputEnded() = 0;

    /// The widget that dialogs open over.
    virtual QWidget* widget() = 0;
};

/// What every window of the game can use. The ports and windows are created before the game, and the main window after
/// it, so the main window registers itself here.
class Host
{
public:
    Theme theme;
    EventGate gate;

    void setView(ModelsView* view) { view_ = view; }

    /// The parent for a dialog that is about to be shown: the topmost open dialog, else the main window (a question
    /// during start-up shows it), or null before that exists.
    [[nodiscard]] QWidget* dialogParent() const;

    /// The main window, null before it exists.
    [[nodiscard]] QWidget* mainWindow() const { return view_ != nullptr ? view_->widget() : nullptr; }

    /// Called when a dialog has changed a model that the main window shows (a hint's path, the colours).
    void showModels() const
    {
        if (view_ != nullptr)
            view_->showModels();
    }

    void inputEnded() const
    {
        if (view_ != nullptr)
            view_->inputEnded();
    }

private:
    ModelsView* view_ = nullptr;
};

} // namespace lexigrove
