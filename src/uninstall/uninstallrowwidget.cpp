#include "uninstallrowwidget.h"

#include "programicon.h"
#include "uninstallmanager.h"
#include "widgets/mirror.h"

#include <QFutureWatcher>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace {

constexpr int TickSide = 16;
constexpr int IconX = 44;
constexpr int IconShown = 28; // the 56-pixel image at a device-pixel ratio of 2
constexpr int ButtonHeight = 26;
constexpr int ButtonTextMargin = 10;

constexpr qint64 MiB = 1024 * 1024;
// Sizes up to these stay quiet, then turn amber, then red.
constexpr qint64 QuietUpTo = 100 * MiB;
constexpr qint64 AmberUpTo = 500 * MiB;

QFont pixelFont(const QFont& base, int pixels, QFont::Weight weight = QFont::Normal)
{
    QFont font(base);
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

UninstallRowWidget::UninstallRowWidget(const InstalledApp& app, QWidget* parent)
    : QWidget(parent)
    , m_app(app)
{
    setFixedHeight(RowHeight);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
}

UninstallRowWidget::~UninstallRowWidget()
{
    m_iconFuture.cancel();
    m_iconFuture.waitForFinished();
}

QString UninstallRowWidget::removeKind(const QString& status)
{
    if (status == QLatin1String("nouninstaller"))
        return QStringLiteral("amber");
    if (status == QLatin1String("old"))
        return QStringLiteral("red");
    return QStringLiteral("quiet");
}

int UninstallRowWidget::buttonWidth(const QFont& base)
{
    const QFontMetrics metrics(pixelFont(base, 12, QFont::Medium));
    return qMax(int(ButtonWidth), metrics.horizontalAdvance(tr("Remove")) + 2 * ButtonTextMargin);
}

QRect UninstallRowWidget::removeButtonRect() const
{
    const int w = buttonWidth(font());
    return Mirror::place(this, QRect(width() - SidePadding - w, (height() - ButtonHeight) / 2, w, ButtonHeight));
}

QString UninstallRowWidget::sizeColor(qint64 bytes)
{
    if (bytes <= QuietUpTo)
        return QStringLiteral("#94a3b8");
    if (bytes <= AmberUpTo)
        return QStringLiteral("#f59e0b");
    return QStringLiteral("#ef4444");
}

void UninstallRowWidget::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    update();
    emit selectionChanged(m_selected);
}

void UninstallRowWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    event->accept();
    // The button acts on release over it, as a push button does; the rest of the row on press.
    if (removeButtonRect().contains(event->position().toPoint())) {
        m_buttonPressed = true;
        return;
    }
    setSelected(!m_selected);
}

void UninstallRowWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const bool click = m_buttonPressed && event->button() == Qt::LeftButton
        && removeButtonRect().contains(event->position().toPoint());
    m_buttonPressed = false;
    event->accept();
    if (click)
        emit uninstallRequested(m_app);
}

void UninstallRowWidget::mouseMoveEvent(QMouseEvent* event)
{
    const bool over = removeButtonRect().contains(event->position().toPoint());
    if (over != m_buttonHovered) {
        m_buttonHovered = over;
        update(removeButtonRect());
    }
    QWidget::mouseMoveEvent(event);
}

void UninstallRowWidget::leaveEvent(QEvent* event)
{
    m_buttonHovered = false;
    update();
    QWidget::leaveEvent(event);
}

void UninstallRowWidget::paintRemoveButton(QPainter& p)
{
    const QString kind = removeKind(m_app.status);
    QColor fill(Qt::transparent);
    QColor border(Qt::transparent);
    QColor ink;
    if (kind == QLatin1String("amber")) {
        fill = m_buttonHovered ? QColor(0xf5, 0x9e, 0x0b) : QColor(245, 158, 11, 20);
        ink = m_buttonHovered ? QColor(Qt::white) : QColor(0xd9, 0x77, 0x06);
    } else if (kind == QLatin1String("red")) {
        fill = m_buttonHovered ? QColor(0xef, 0x44, 0x44) : QColor(239, 68, 68, 20);
        ink = m_buttonHovered ? QColor(Qt::white) : QColor(0xdc, 0x26, 0x26);
    } else {
        border = QColor(0xe2, 0xe8, 0xf0);
        ink = m_buttonHovered ? QColor(0xdc, 0x26, 0x26) : QColor(0x94, 0xa3, 0xb8);
    }
    const QRectF r = QRectF(removeButtonRect()).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setPen(border.alpha() ? QPen(border, 1) : Qt::NoPen);
    p.setBrush(fill);
    p.drawRoundedRect(r, 6, 6);
    p.setPen(ink);
    p.setFont(pixelFont(font(), 12, QFont::Medium));
    p.drawText(removeButtonRect(), Qt::AlignCenter, tr("Remove"));
}

void UninstallRowWidget::loadIcon()
{
    m_iconRequested = true;
    auto* watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcher<QImage>::finished, this, [this, watcher] {
        const QImage image = watcher->result();
        watcher->deleteLater();
        if (image.isNull())
            return;
        m_icon = QPixmap::fromImage(image);
        m_icon.setDevicePixelRatio(qreal(ProgramIcon::Side) / IconShown);
        update();
    });
    m_iconFuture = ProgramIcon::loadAsync(m_app);
    watcher->setFuture(m_iconFuture);
}

void UninstallRowWidget::paintEvent(QPaintEvent*)
{
    if (!m_iconRequested)
        loadIcon();

    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor background = m_selected ? QColor(0xef, 0xf6, 0xff)
        : underMouse()                   ? QColor(0xf8, 0xfa, 0xfc)
                                         : QColor(Qt::white);
    p.fillRect(rect(), background);
    p.fillRect(QRect(0, height() - 1, width(), 1), QColor(0xf1, 0xf5, 0xf9));

    // The tick.
    const QRectF tick
        = Mirror::place(this, QRectF(SidePadding + 0.5, (height() - TickSide) / 2 + 0.5, TickSide - 1, TickSide - 1));
    if (m_selected) {
        p.setPen(QPen(QColor(0x25, 0x63, 0xeb), 1));
        p.setBrush(QColor(0x25, 0x63, 0xeb));
        p.drawRoundedRect(tick, 4, 4);
        QPainterPath mark;
        mark.moveTo(tick.left() + 3.5, tick.center().y());
        mark.lineTo(tick.left() + 6.5, tick.bottom() - 4);
        mark.lineTo(tick.right() - 3.5, tick.top() + 4);
        p.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(mark);
    } else {
        p.setPen(QPen(QColor(0xcb, 0xd5, 0xe1), 1));
        p.setBrush(Qt::white);
        p.drawRoundedRect(tick, 4, 4);
    }

    // The icon, or a lettered tile until (or unless) one is found.
    const QRect iconRect = Mirror::place(this, QRect(IconX, (height() - IconShown) / 2, IconShown, IconShown));
    if (!m_icon.isNull()) {
        p.drawPixmap(iconRect, m_icon);
    } else {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xdb, 0xea, 0xfe));
        p.drawRoundedRect(iconRect, 7, 7);
        p.setPen(QColor(0x1d, 0x4e, 0xd8));
        p.setFont(pixelFont(font(), 13, QFont::DemiBold));
        p.drawText(iconRect, Qt::AlignCenter, m_app.name.left(1).toUpper());
    }

    const int buttonX = width() - SidePadding - buttonWidth(font());
    const int dateX = buttonX - ColumnGap - DateWidth;
    const int sizeX = dateX - ColumnGap - SizeWidth;
    const int publisherX = sizeX - ColumnGap - PublisherWidth;
    const int nameWidth = publisherX - ColumnGap - NameX;

    // Names, publishers and sizes keep their own reading direction whatever the interface's, so
    // "1.2 GB" never turns into "GB 1.2"; the columns themselves follow the interface.
    const Qt::LayoutDirection interfaceDirection = layoutDirection();
    p.setLayoutDirection(Qt::LayoutDirectionAuto);
    const auto text = [&](int x, int w, const QFont& f, const QColor& color, const QString& s,
                          Qt::Alignment align = Qt::AlignLeft) {
        if (w <= 0)
            return;
        p.setFont(f);
        p.setPen(color);
        const QString shown = QFontMetrics(f).elidedText(s, Qt::ElideRight, w);
        p.drawText(Mirror::place(this, QRect(x, 0, w, height())),
            int(QStyle::visualAlignment(interfaceDirection, align) | Qt::AlignVCenter), shown);
    };
    text(NameX, nameWidth, pixelFont(font(), 13, QFont::Medium), QColor(0x0f, 0x17, 0x2a), m_app.name);
    text(publisherX, PublisherWidth, pixelFont(font(), 12), QColor(0x64, 0x74, 0x8b), m_app.publisher);
    text(sizeX, SizeWidth, pixelFont(font(), 12, QFont::Medium), QColor(sizeColor(m_app.estimatedSize)),
        UninstallManager::formatSize(m_app.estimatedSize));
    text(dateX, DateWidth, pixelFont(font(), 12), QColor(0x94, 0xa3, 0xb8), m_app.installDate);
    p.setLayoutDirection(interfaceDirection);
    paintRemoveButton(p);
}
