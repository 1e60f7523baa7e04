#include "editor/ScreenRecordingPrompt.h"

#include "editor/Controls.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"
#include "render/layers/Backdrop.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace velvane {

namespace {

constexpr int symbolSize = 40;
constexpr int symbolSpace = 48;
constexpr int textWidth = 352;
// On the canvas's own dark gradient, whatever the theme.
const QColor titleColor(0xEC, 0xED, 0xF0);
const QColor textColor(0xA6, 0xAA, 0xB3);

class Symbol : public QWidget {
public:
    explicit Symbol(QWidget *parent) : QWidget(parent) { setFixedHeight(symbolSpace); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        Icons::draw(painter, QStringLiteral("rectangle.dashed.badge.record"), textColor, rect(),
                    symbolSize);
    }
};

QLabel *label(const QString &text, const QFont &font, const QColor &color, QWidget *parent)
{
    auto *made = new QLabel(text, parent);
    made->setFont(font);
    made->setAlignment(Qt::AlignCenter);
    made->setWordWrap(true);
    made->setStyleSheet(QStringLiteral("color: %1; background: transparent;").arg(color.name()));
    return made;
}

} // namespace

ScreenRecordingPrompt::ScreenRecordingPrompt(QWidget *parent)
    : QWidget(parent)
    , m_openSettings(Controls::button({}, tr("Open Settings"),
                                      tr("Open the page that permits screen recording"),
                                      QStringLiteral("primary"), this))
    , m_tryAgain(
          Controls::button({}, tr("Try Again"), tr("Look again whether it is permitted"), {}, this))
{
    const QString title = tr("Screen Recording permission needed");
    setAccessibleName(title);
    auto *text = label(tr("Velvane shows your live screen as the backdrop so you can pick targets "
                          "where they really are."),
                       Theme::font(), textColor, this);
    text->setMaximumWidth(textWidth);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Metrics::gap);
    buttons->addStretch();
    buttons->addWidget(m_openSettings);
    buttons->addWidget(m_tryAgain);
    buttons->addStretch();
    auto *lines = new QVBoxLayout(this);
    lines->setContentsMargins(Metrics::gap, Metrics::gap, Metrics::gap, Metrics::gap);
    lines->setSpacing(0);
    lines->addStretch();
    lines->addWidget(new Symbol(this));
    lines->addSpacing(Metrics::wideGap);
    lines->addWidget(label(title, Theme::font(TextSize::title, QFont::DemiBold), titleColor, this));
    lines->addSpacing(Metrics::gap);
    auto *centred = new QHBoxLayout;
    centred->addWidget(text);
    lines->addLayout(centred);
    lines->addSpacing(Metrics::wideGap);
    lines->addLayout(buttons);
    lines->addStretch();
    connect(m_openSettings, &QPushButton::clicked, this, &ScreenRecordingPrompt::settingsRequested);
    connect(m_tryAgain, &QPushButton::clicked, this, &ScreenRecordingPrompt::retryRequested);
}

// The demo shows nothing through it: it looks like the empty canvas.
void ScreenRecordingPrompt::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Snapshot empty;
    empty.canvasSize = size();
    Backdrop::draw(painter, empty);
}

} // namespace velvane
