#pragma once

#include "scores/score_form.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The top-ten window `ScoreForm`. Closing it, by its frame or with Esc, is "Close".
class ScoreDialog : public ScoreWindow
{
public:
    explicit ScoreDialog(Host& host) : host_(host) {}

    void show(ScoreForm& form) override;

private:
    Host& host_;
};

} // namespace lexigrove
