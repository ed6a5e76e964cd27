#include "Platform/Linux/Qt/Windows/AboutWindow.h"

#include "Platform/Linux/Qt/ApplicationIcon.h"
#include "Platform/Linux/Qt/Windows/WindowActivation.h"
#include "Platform/Linux/Qt/XDesktop.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

namespace tocca::platform::linux {

namespace {

constexpr QSize kSize(320, 272);
constexpr int kIconSize = 96;
const QColor kGround(246, 248, 250);
const QColor kText(28, 32, 38);
const QColor kQuiet(104, 112, 122);

/// A line of text and where it stands.
struct Line {
    QString text;
    int y;
    int pixels;
    QFont::Weight weight;
    QColor colour;
};

} // namespace

AboutWindow::AboutWindow()
{
    setFlags(Qt::Dialog);
    setTitle(QStringLiteral("About Tocca"));
    setMinimumSize(kSize);
    setMaximumSize(kSize);
    resize(kSize);
}

void AboutWindow::showInFront()
{
    if (!isVisible()) {
        XDesktop::adopt(*this);
        if (const QScreen* const place = screen()) {
            QRect frame({}, kSize);
            frame.moveCenter(place->availableGeometry().center());
            setPosition(frame.topLeft());
        }
        show();
    }
    bringToFront(*this);
}

void AboutWindow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(QRect({}, size()), kGround);
    constexpr int kTop = 32;
    applicationIcon().paint(&painter, QRect((width() - kIconSize) / 2, kTop, kIconSize, kIconSize));
    const Line lines[] = {
        // NOLINT(modernize-avoid-c-arrays)
        {QStringLiteral("Tocca"), 144, 22, QFont::Bold, kText},
        {QStringLiteral("Version " TOCCA_VERSION), 178, 12, QFont::Normal, kQuiet},
        {QStringLiteral("The sound of a mechanical keyboard"), 204, 12, QFont::Normal, kText},
        {QStringLiteral("Free software under the MIT licence"), 226, 11, QFont::Normal, kQuiet}};
    for (const Line& line : lines) {
        QFont font(QStringLiteral("Inter"));
        font.setPixelSize(line.pixels);
        font.setWeight(line.weight);
        painter.setFont(font);
        painter.setPen(line.colour);
        painter.drawText(QRect(0, line.y, width(), 2 * line.pixels), Qt::AlignHCenter | Qt::AlignTop,
                         line.text);
    }
}

void AboutWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape ||
        (event->key() == Qt::Key_W && event->modifiers() == Qt::ControlModifier)) {
        hide();
    }
}

} // namespace tocca::platform::linux
