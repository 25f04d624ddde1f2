#include "winapprow.h"

#include "widgets/elidedlabel.h"
#include "widgets/mirror.h"
#include "widgets/paintedcheckbox.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace {

constexpr int AvatarSide = 28;
constexpr int CheckBoxSide = 16;
constexpr int CheckBoxLeft = 14;
constexpr qreal CornerRadius = 10;

const char* const AvatarPalette[]
    = { "#0ea5e9", "#8b5cf6", "#10b981", "#f59e0b", "#ef4444", "#6366f1", "#14b8a6", "#f97316" };

const char* const CellStyle = "font-size:12px; color:#475569; background:transparent;";

QLabel* cell(const QString& text, int width, QWidget* parent)
{
    auto* label = new ElidedLabel(text, parent);
    label->setStyleSheet(QLatin1String(CellStyle));
    label->setFixedWidth(width);
    label->setToolTip(text);
    return label;
}

} // namespace

WinAppRow::WinAppRow(const WinApp& app, QWidget* parent)
    : QWidget(parent)
    , m_app(app)
{
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setFixedHeight(52);

    auto* layout = new QHBoxLayout(this);
    // The left margin leaves room for the painted check box.
    Mirror::keepMarginsMirrored(this, layout, QMargins(CheckColumn, 0, 12, 0));
    layout->setSpacing(ColumnSpacing);

    layout->addWidget(makeAvatar());
    auto* name = new ElidedLabel(app.displayName, this);
    name->setObjectName(QStringLiteral("WinAppRowName"));
    name->setStyleSheet(QStringLiteral("font-size:13px; font-weight:500; color:#1e293b; background:transparent;"));
    name->setToolTip(app.name);
    // Long names must not widen the row past the window.
    name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(name, 1);

    auto* publisher = cell(app.publisher, PublisherColumn, this);
    publisher->setObjectName(QStringLiteral("WinAppRowPublisher"));
    layout->addWidget(publisher);
    layout->addWidget(cell(app.version, VersionColumn, this));
    layout->addWidget(cell(app.installDate, DateColumn, this));
    auto* size = cell(app.sizeText, SizeColumn, this);
    size->setObjectName(QStringLiteral("WinAppRowSize"));
    layout->addWidget(size);

    auto* remove = new QPushButton(tr("移除"), this);
    remove->setObjectName(QStringLiteral("WinAppRowRemove"));
    remove->setCursor(Qt::PointingHandCursor);
    remove->setFixedSize(actionColumnWidth() - 8, 26);
    remove->setStyleSheet(
        QStringLiteral("QPushButton { background:#fee2e2; color:#dc2626; border:none; border-radius:5px;"
                       " font-size:12px; font-weight:600; }"
                       "QPushButton:hover { background:#fecaca; }"));
    connect(remove, &QPushButton::clicked, this, [this] { emit removeRequested(m_app); });
    layout->addWidget(remove);
    layout->addSpacing(8);
}

int WinAppRow::actionColumnWidth()
{
    QFont font;
    font.setPixelSize(12);
    font.setWeight(QFont::DemiBold);
    const int textWidth = QFontMetrics(font).horizontalAdvance(tr("移除"));
    return qMax(ActionColumn, textWidth + 2 * 8 + 8);
}

QColor WinAppRow::avatarColor(const QString& displayName)
{
    const int index = displayName.isEmpty() ? 0 : int(displayName.at(0).unicode() & 7);
    return QColor(QLatin1String(AvatarPalette[index]));
}

QLabel* WinAppRow::makeAvatar()
{
    auto* avatar = new QLabel(this);
    avatar->setObjectName(QStringLiteral("WinAppRowAvatar"));
    avatar->setFixedSize(AvatarSide, AvatarSide);
    avatar->setAlignment(Qt::AlignCenter);
    if (!m_app.logoPath.isEmpty() && QFileInfo(m_app.logoPath).isFile()) {
        const QImage image(m_app.logoPath);
        if (!image.isNull()) {
            avatar->setPixmap(QPixmap::fromImage(
                image.scaled(AvatarSide, AvatarSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
            avatar->setStyleSheet(QStringLiteral("border-radius:6px; background:transparent;"));
            return avatar;
        }
    }
    avatar->setText(m_app.displayName.left(1).toUpper());
    avatar->setStyleSheet(QStringLiteral("border-radius:7px; font-size:13px; font-weight:bold; color:white;"
                                         " background:%1;")
                              .arg(avatarColor(m_app.displayName).name()));
    return avatar;
}

void WinAppRow::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    update();
    emit selectionChanged(m_selected);
}

void WinAppRow::paintEvent(QPaintEvent*)
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

    const QRectF box
        = Mirror::place(this, QRectF(CheckBoxLeft, height() / 2 - CheckBoxSide / 2, CheckBoxSide, CheckBoxSide));
    paintCheckBox(painter, box, m_selected);
}

void WinAppRow::enterEvent(QEnterEvent* event)
{
    m_hovered = true;
    update();
    QWidget::enterEvent(event);
}

void WinAppRow::leaveEvent(QEvent* event)
{
    m_hovered = false;
    update();
    QWidget::leaveEvent(event);
}

void WinAppRow::mousePressEvent(QMouseEvent* event)
{
    setSelected(!m_selected);
    event->accept();
}
