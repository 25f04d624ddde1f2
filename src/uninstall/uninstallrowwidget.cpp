#include "uninstallrowwidget.h"

#include "programicon.h"
#include "uninstallmanager.h"

#include <QFutureWatcher>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

namespace {

constexpr int TickSide = 16;
constexpr int IconX = 44;
constexpr int IconShown = 28; // the 56-pixel image at a device-pixel ratio of 2
constexpr int ButtonHeight = 26;

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
    setCursor(Qt::PointingHandCursor);

    m_remove = new QPushButton(tr("Remove"), this);
    m_remove->setObjectName(QStringLiteral("RemoveButton"));
    m_remove->setProperty("kind", removeKind(app.status));
    m_remove->setFixedSize(ButtonWidth, ButtonHeight);
    m_remove->setCursor(Qt::PointingHandCursor);
    connect(m_remove, &QPushButton::clicked, this, [this] { emit uninstallRequested(m_app); });
}

QString UninstallRowWidget::removeKind(const QString& status)
{
    if (status == QLatin1String("nouninstaller"))
        return QStringLiteral("amber");
    if (status == QLatin1String("old"))
        return QStringLiteral("red");
    return QStringLiteral("quiet");
}

QString UninstallRowWidget::removeButtonStyleSheet()
{
    return QStringLiteral("QPushButton#RemoveButton { border-radius:6px; font-size:12px; font-weight:500; padding:0; }"
                          "QPushButton#RemoveButton[kind=\"amber\"] { background:rgba(245,158,11,0.08); color:#d97706; "
                          "border:1px solid transparent; }"
                          "QPushButton#RemoveButton[kind=\"amber\"]:hover { background:#f59e0b; color:white; }"
                          "QPushButton#RemoveButton[kind=\"red\"] { background:rgba(239,68,68,0.08); color:#dc2626; "
                          "border:1px solid transparent; }"
                          "QPushButton#RemoveButton[kind=\"red\"]:hover { background:#ef4444; color:white; }"
                          "QPushButton#RemoveButton[kind=\"quiet\"] { background:transparent; color:#94a3b8; "
                          "border:1px solid #e2e8f0; }"
                          "QPushButton#RemoveButton[kind=\"quiet\"]:hover { color:#dc2626; }");
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
    if (event->button() == Qt::LeftButton) {
        setSelected(!m_selected);
        event->accept();
        return;
    }
    QWidget::mousePressEvent(event);
}

void UninstallRowWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_remove->move(width() - SidePadding - ButtonWidth, (height() - ButtonHeight) / 2);
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
    watcher->setFuture(ProgramIcon::loadAsync(m_app));
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
    const QRectF tick(SidePadding + 0.5, (height() - TickSide) / 2 + 0.5, TickSide - 1, TickSide - 1);
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
    const QRect iconRect(IconX, (height() - IconShown) / 2, IconShown, IconShown);
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

    const int buttonX = width() - SidePadding - ButtonWidth;
    const int dateX = buttonX - ColumnGap - DateWidth;
    const int sizeX = dateX - ColumnGap - SizeWidth;
    const int publisherX = sizeX - ColumnGap - PublisherWidth;
    const int nameWidth = publisherX - ColumnGap - NameX;

    const auto text = [&](int x, int w, const QFont& f, const QColor& color, const QString& s,
                          Qt::Alignment align = Qt::AlignLeft) {
        if (w <= 0)
            return;
        p.setFont(f);
        p.setPen(color);
        const QString shown = QFontMetrics(f).elidedText(s, Qt::ElideRight, w);
        p.drawText(QRect(x, 0, w, height()), int(align | Qt::AlignVCenter), shown);
    };
    text(NameX, nameWidth, pixelFont(font(), 13, QFont::Medium), QColor(0x0f, 0x17, 0x2a), m_app.name);
    text(publisherX, PublisherWidth, pixelFont(font(), 12), QColor(0x64, 0x74, 0x8b), m_app.publisher);
    text(sizeX, SizeWidth, pixelFont(font(), 12, QFont::Medium), QColor(sizeColor(m_app.estimatedSize)),
        UninstallManager::formatSize(m_app.estimatedSize));
    text(dateX, DateWidth, pixelFont(font(), 12), QColor(0x94, 0xa3, 0xb8), m_app.installDate);
}
