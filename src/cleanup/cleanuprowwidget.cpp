#include "cleanuprowwidget.h"

#include "widgets/mirror.h"
#include "widgets/paintedcheckbox.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;

// Above these a category is worth a warning colour.
constexpr qint64 AmberAbove = 200 * MiB;
constexpr qint64 RedAbove = 800 * MiB;

constexpr int CheckBoxSide = 16;
constexpr int CheckBoxFromRight = 30;
constexpr qreal CornerRadius = 10;

const char* const SizeTextStyle = "font-size:12px; font-weight:600; color:%1; background:transparent;";
const char* const BarStyle = "QProgressBar { background:#e2e8f0; border:none; border-radius:2px; }"
                             "QProgressBar::chunk { background:%1; border-radius:2px; }";

struct SizeColours {
    const char* bar;
    const char* text;
};

SizeColours coloursFor(qint64 bytes)
{
    if (bytes > RedAbove)
        return { "#ef4444", "#dc2626" };
    if (bytes > AmberAbove)
        return { "#f59e0b", "#d97706" };
    return { "#3b82f6", "#2563eb" };
}

} // namespace

CleanupRowWidget::CleanupRowWidget(const JunkCategory& category, QWidget* parent)
    : QWidget(parent)
    , m_selected(category.selected)
    , m_size(category.size)
{
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);

    auto* layout = new QHBoxLayout(this);
    // The right margin leaves room for the painted check box.
    Mirror::keepMarginsMirrored(this, layout, QMargins(16, 14, 44, 14));
    layout->setSpacing(12);

    auto* icon = new QLabel(category.icon, this);
    icon->setObjectName(QStringLiteral("CleanupRowIcon"));
    icon->setFixedSize(36, 36);
    icon->setAlignment(Qt::AlignCenter);
    icon->setStyleSheet(QStringLiteral("background:rgba(37,99,235,0.08); border-radius:10px; font-size:16px;"));
    layout->addWidget(icon);

    auto* texts = new QVBoxLayout;
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(2);
    auto* name = new QLabel(category.name, this);
    name->setObjectName(QStringLiteral("CleanupRowName"));
    name->setStyleSheet(QStringLiteral("font-size:13px; font-weight:500; color:#0f172a; background:transparent;"));
    // The system folders are spelt with forward slashes in the code; Windows shows backslashes.
    auto* path = new QLabel(QDir::toNativeSeparators(category.paths.value(0)), this);
    path->setObjectName(QStringLiteral("CleanupRowPath"));
    path->setStyleSheet(QStringLiteral("font-size:11px; color:#94a3b8; background:transparent;"));
    // Long paths must not widen the row.
    path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    texts->addWidget(name);
    texts->addWidget(path);
    layout->addLayout(texts, 1);

    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("CleanupRowBar"));
    m_bar->setFixedSize(60, 4);
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_bar->setTextVisible(false);
    m_bar->setStyleSheet(QString::fromLatin1(BarStyle).arg(QLatin1String(coloursFor(0).bar)));
    layout->addWidget(m_bar);

    m_sizeLabel = new QLabel(tr("扫描中…"), this);
    m_sizeLabel->setObjectName(QStringLiteral("CleanupRowSize"));
    m_sizeLabel->setFixedWidth(72);
    m_sizeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_sizeLabel->setStyleSheet(QString::fromLatin1(SizeTextStyle).arg(QLatin1String("#94a3b8")));
    layout->addWidget(m_sizeLabel);
}

QString CleanupRowWidget::formatSize(qint64 bytes)
{
    if (bytes <= 0)
        return QStringLiteral("0 KB");
    if (bytes >= GiB)
        return QStringLiteral("%1 GB").arg(double(bytes) / GiB, 0, 'f', 1);
    if (bytes >= MiB)
        return QStringLiteral("%1 MB").arg(double(bytes) / MiB, 0, 'f', 0);
    return QStringLiteral("%1 KB").arg(double(bytes) / KiB, 0, 'f', 0);
}

void CleanupRowWidget::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    update();
    emit selectionChanged(m_selected);
}

void CleanupRowWidget::setSize(qint64 bytes)
{
    m_size = bytes;
    const SizeColours colours = coloursFor(bytes);
    m_sizeLabel->setText(formatSize(bytes));
    m_sizeLabel->setStyleSheet(QString::fromLatin1(SizeTextStyle).arg(QLatin1String(colours.text)));
    m_bar->setStyleSheet(QString::fromLatin1(BarStyle).arg(QLatin1String(colours.bar)));
    // The bar shows the share of 1 GiB.
    m_bar->setValue(bytes < 1 ? 0 : int(qMin<qint64>(bytes * 100 / GiB, 100)));
}

void CleanupRowWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const qreal borderWidth = m_selected ? 1.5 : 1.0;
    const QRectF frame = QRectF(rect()).adjusted(borderWidth / 2, borderWidth / 2, -borderWidth / 2, -borderWidth / 2);
    QColor border;
    if (m_selected)
        border = QColor(0x93, 0xc5, 0xfd);
    else
        border = m_hovered ? QColor(0xbf, 0xdb, 0xfe) : QColor(0xe2, 0xe8, 0xf0);
    painter.setPen(QPen(border, borderWidth));
    painter.setBrush(m_selected ? QColor(0xef, 0xf6, 0xff) : QColor(Qt::white));
    painter.drawRoundedRect(frame, CornerRadius, CornerRadius);

    const QRectF box = Mirror::place(
        this, QRectF(width() - CheckBoxFromRight, height() / 2 - CheckBoxSide / 2, CheckBoxSide, CheckBoxSide));
    paintCheckBox(painter, box, m_selected);
}

void CleanupRowWidget::enterEvent(QEnterEvent* event)
{
    m_hovered = true;
    update();
    QWidget::enterEvent(event);
}

void CleanupRowWidget::leaveEvent(QEvent* event)
{
    m_hovered = false;
    update();
    QWidget::leaveEvent(event);
}

void CleanupRowWidget::mousePressEvent(QMouseEvent* event)
{
    setSelected(!m_selected);
    event->accept();
}
