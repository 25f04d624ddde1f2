#include "browserextrow.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int AvatarSize = 32;
constexpr int IconSize = 24;
// Icons are a few dozen pixels; a file claiming more than this is not worth decoding for a row.
constexpr int MaxIconSide = 1024;

const char* const AvatarColours[]
    = { "#3b82f6", "#8b5cf6", "#10b981", "#f59e0b", "#ef4444", "#06b6d4", "#ec4899", "#6366f1" };

QPixmap loadIcon(const QString& path)
{
    if (path.isEmpty())
        return QPixmap();
    QImageReader reader(path);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > MaxIconSide || size.height() > MaxIconSide)
        return QPixmap();
    reader.setScaledSize(size.scaled(IconSize, IconSize, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    return image.isNull() ? QPixmap() : QPixmap::fromImage(image);
}

} // namespace

BrowserExtRow::BrowserExtRow(const BrowserExt& ext, QWidget* parent)
    : QWidget(parent)
    , m_ext(ext)
{
    setObjectName(QStringLiteral("BrowserExtRow"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#BrowserExtRow { background:white; border-top:1px solid #f1f5f9; }"
                                 "QWidget#BrowserExtRow:hover { background:#f8fafc; }"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 6, 16, 6);
    layout->setSpacing(12);

    m_check = new QCheckBox(this);
    m_check->setCursor(Qt::PointingHandCursor);
    connect(m_check, &QCheckBox::toggled, this, &BrowserExtRow::selectionChanged);
    layout->addWidget(m_check);
    layout->addWidget(createAvatar());

    auto* texts = new QVBoxLayout;
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(1);
    auto* titleLine = new QHBoxLayout;
    titleLine->setContentsMargins(0, 0, 0, 0);
    titleLine->setSpacing(8);
    auto* name = new QLabel(ext.name, this);
    name->setObjectName(QStringLiteral("BrowserExtName"));
    name->setTextFormat(Qt::PlainText);
    name->setStyleSheet(QStringLiteral("font-size:13px; font-weight:600; color:#0f172a; background:transparent;"));
    titleLine->addWidget(name);
    if (!ext.version.isEmpty()) {
        auto* version = new QLabel(QStringLiteral("v") + ext.version, this);
        version->setObjectName(QStringLiteral("BrowserExtVersion"));
        version->setTextFormat(Qt::PlainText);
        version->setStyleSheet(QStringLiteral("font-size:11px; color:#94a3b8; background:transparent;"));
        titleLine->addWidget(version);
    }
    if (!ext.enabled) {
        auto* badge = new QLabel(tr("已禁用"), this);
        badge->setObjectName(QStringLiteral("BrowserExtDisabledBadge"));
        badge->setStyleSheet(QStringLiteral(
            "font-size:10px; font-weight:600; color:#64748b; background:#f1f5f9; border-radius:4px; padding:1px 6px;"));
        titleLine->addWidget(badge);
    }
    titleLine->addStretch();
    texts->addLayout(titleLine);
    if (!ext.description.isEmpty()) {
        auto* description = new QLabel(ext.description, this);
        description->setObjectName(QStringLiteral("BrowserExtDescription"));
        description->setTextFormat(Qt::PlainText);
        description->setToolTip(ext.description);
        description->setStyleSheet(QStringLiteral("font-size:11px; color:#64748b; background:transparent;"));
        // A long description must not widen the page; it is cut at the row's edge instead.
        description->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        texts->addWidget(description);
    }
    layout->addLayout(texts, 1);

    auto* remove = new QPushButton(tr("移除"), this);
    remove->setObjectName(QStringLiteral("BrowserExtRemoveButton"));
    remove->setCursor(Qt::PointingHandCursor);
    remove->setFixedHeight(26);
    remove->setStyleSheet(QStringLiteral(
        "QPushButton { background:#fee2e2; color:#dc2626; border:none; border-radius:5px; font-size:12px; "
        "font-weight:600; padding:0 14px; }"
        "QPushButton:hover { background:#fecaca; }"
        "QPushButton:pressed { background:#fca5a5; }"));
    connect(remove, &QPushButton::clicked, this, [this] { emit removeRequested(m_ext); });
    layout->addWidget(remove);
}

QWidget* BrowserExtRow::createAvatar()
{
    auto* avatar = new QLabel(this);
    avatar->setObjectName(QStringLiteral("BrowserExtAvatar"));
    avatar->setFixedSize(AvatarSize, AvatarSize);
    avatar->setAlignment(Qt::AlignCenter);
    const QPixmap icon = loadIcon(m_ext.iconPath);
    if (!icon.isNull()) {
        avatar->setPixmap(icon);
        avatar->setStyleSheet(QStringLiteral("background:#f8fafc; border:1px solid #e2e8f0; border-radius:8px;"));
        return avatar;
    }
    // The same extension keeps the same colour from scan to scan.
    const char* colour = AvatarColours[qHash(m_ext.id) % std::size(AvatarColours)];
    // One whole character: a name may begin with an emoji, which takes two UTF-16 units.
    const QString trimmed = m_ext.name.trimmed();
    const QString initial = trimmed.left(!trimmed.isEmpty() && trimmed.at(0).isHighSurrogate() ? 2 : 1).toUpper();
    avatar->setTextFormat(Qt::PlainText);
    avatar->setText(initial.isEmpty() ? QStringLiteral("?") : initial);
    avatar->setStyleSheet(
        QStringLiteral("background:%1; color:white; border-radius:8px; font-size:15px; font-weight:700;")
            .arg(QLatin1String(colour)));
    return avatar;
}

bool BrowserExtRow::isSelected() const
{
    return m_check->isChecked();
}

void BrowserExtRow::setSelected(bool selected)
{
    m_check->setChecked(selected);
}

bool BrowserExtRow::matches(const QString& text) const
{
    const QString needle = text.trimmed();
    return needle.isEmpty() || m_ext.name.contains(needle, Qt::CaseInsensitive)
        || m_ext.description.contains(needle, Qt::CaseInsensitive) || m_ext.id.contains(needle, Qt::CaseInsensitive);
}
