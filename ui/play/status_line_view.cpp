#include "ui/play/status_line_view.hpp"

#include "game/board.hpp"
#include "game/game_state.hpp"
#include "settings/readable_colours.hpp"
#include "ui/look/text.hpp"

#include <QFontMetrics>
#include <QGridLayout>
#include <QPainter>
#include <QStyle>
#include <QTimer>

namespace lexigrove
{

namespace
{

constexpr int iconSize = 2 * Theme::grid;
constexpr int textSize = 13;

/// A triangle with an exclamation mark.
class WarnIcon : public QWidget
{
public:
    WarnIcon(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme)
    {
        setObjectName("Warn");
        setFixedSize(iconSize, iconSize);
        QSizePolicy policy = sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        setSizePolicy(policy);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const Colour accent = theme_.colours().accent;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(width() / 16.0, height() / 16.0);
        painter.setPen(QPen(toQColor(accent), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(toQColor(accent));
        painter.drawPolygon(QPolygonF{{{8, 2}, {14.5, 13.5}, {1.5, 13.5}}});
        painter.setPen(QPen(toQColor(theme_.colours().accentText), 1.8, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(8, 6), QPointF(8, 9.4));
        painter.drawPoint(QPointF(8, 12.2));
    }

private:
    const Theme& theme_;
};

} // namespace

StatusLineView::StatusLineView(const StatusLine& status, const GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent),
      status_(status),
      flow_(flow),
      theme_(theme),
      Warn(new WarnIcon(theme, this)),
      Label1(new QLabel(this)),
      Label4(new QLabel(this)),
      newsTime_(new QTimer(this))
{
    setObjectName("StatusLine");
    Label1->setObjectName("Label1");
    Label1->setAccessibleDescription(tr("Status"));
    Label4->setObjectName("Label4");
    for (QLabel* label : {Label1, Label4}) {
        label->setTextFormat(Qt::PlainText);
        label->setProperty("quiet", true);
        label->setFont(Theme::font(textSize));
        label->setMinimumWidth(1); // a long message must not widen the window
    }
    Label4->setFont(Theme::font(Theme::smallestText));
    Label4->setWordWrap(true);
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(Theme::margin, Theme::grid, Theme::margin, Theme::grid);
    rows->setHorizontalSpacing(Theme::grid);
    rows->addWidget(Warn, 0, 0);
    rows->addWidget(Label1, 0, 1);
    rows->addWidget(Label4, 1, 0, 1, 2);
    rows->setColumnStretch(1, 1);
    rows->setRowMinimumHeight(0, iconSize + 2);
    newsTime_->setSingleShot(true);
    newsTime_->setInterval(3'000);
    connect(newsTime_, &QTimer::timeout, this, &StatusLineView::synchronise);
}

void StatusLineView::synchronise()
{
    const bool again = told_ != status_.told && !status_.News.empty();
    if (again) {
        told_ = status_.told;
        newsTime_->start(); // time to read it, even for a pointer that wanders over the board
    }
    using enum StatusLine::Current;
    const bool warns = status_.current == Caption && status_.Warn && !status_.Label1.empty();
    const bool tells = !warns && !flow_.view().state.computerTurnInProgress && !status_.News.empty() &&
                       (newsTime_->isActive() || status_.current == News);
    const std::string none;
    const std::string& text = tells ? status_.News : status_.current == Caption ? status_.Label1 : none;
    if (const QString message = onOneLine(text); message != full_ || again) {
        full_ = message;
        elide();
        emit shows(message);
    }
    const GameState& state = flow_.view().state;
    setLoud(warns || tells || state.computerTurnInProgress);
    if (warns == Warn->isHidden())
        Warn->setVisible(warns);
    if (state.developerMode == Label4->isHidden())
        Label4->setVisible(state.developerMode);
    const int tile = state.developerMode ? state.hoveredTile : 0;
    Label4->setText(tile == 0 ? QString() : toQString(flow_.view().board.description(tile)));
}

/// Messages that the player has to know stand out from descriptions of what is under the pointer.
void StatusLineView::setLoud(bool loud)
{
    if (Label1->property("quiet").toBool() != loud)
        return;
    Label1->setProperty("quiet", !loud);
    Label1->style()->unpolish(Label1);
    Label1->style()->polish(Label1);
}

void StatusLineView::elide()
{
    const QString fitting = QFontMetrics(Label1->font()).elidedText(full_, Qt::ElideRight, Label1->width());
    Label1->setText(fitting);
    Label1->setToolTip(fitting == full_ ? QString() : full_);
}

void StatusLineView::resizeEvent(QResizeEvent* /*event*/)
{
    layout()->activate();
    elide();
}

void StatusLineView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), 1), toQColor(theme_.colours().line));
}

} // namespace lexigrove
