#include "forceremoverowwidget.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QPair>
#include <QVBoxLayout>

namespace {

constexpr int RowHeight = 60;
constexpr int SideMargin = 16;
constexpr int IconSize = 36;
constexpr int LabelMaxChars = 60;
constexpr int LabelCutChars = 57;
constexpr int SizeWidth = 70;
constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;
constexpr qint64 NoticeableBytes = 10 * MiB;
constexpr qint64 LargeBytes = 100 * MiB;

QLabel* badge(const QString& text, const QString& style, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setStyleSheet(style);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return label;
}

} // namespace

ForceRemoveRowWidget::KindStyle ForceRemoveRowWidget::kindStyle(ForceRemoveKind kind)
{
    // Badge texts and colours: built once, on first use, and shared by every row.
    static const QHash<int, QPair<QString, QString>> badges = [] {
        QHash<int, QPair<QString, QString>> table;
        table.insert(int(ForceRemoveKind::InstallDir), { tr("Install Dir"), QStringLiteral("#dbeafe|#1d4ed8") });
        table.insert(int(ForceRemoveKind::AppData), { tr("App Data"), QStringLiteral("#fef3c7|#d97706") });
        table.insert(int(ForceRemoveKind::RegistryKey), { tr("Registry"), QStringLiteral("#ede9fe|#7c3aed") });
        table.insert(int(ForceRemoveKind::StartupRegistry), { tr("Startup"), QStringLiteral("#dbeafe|#1d4ed8") });
        table.insert(int(ForceRemoveKind::StartupShortcut), { tr("Startup Lnk"), QStringLiteral("#dbeafe|#1d4ed8") });
        table.insert(int(ForceRemoveKind::ScheduledTask), { tr("Scheduled Task"), QStringLiteral("#fef3c7|#d97706") });
        table.insert(int(ForceRemoveKind::Service), { tr("Service"), QStringLiteral("#fef3c7|#d97706") });
        return table;
    }();

    KindStyle style;
    switch (kind) {
    case ForceRemoveKind::InstallDir:
        style.icon = QStringLiteral("📁");
        style.iconBackground = QStringLiteral("#e0f2fe");
        break;
    case ForceRemoveKind::AppData:
        style.icon = QStringLiteral("🗂");
        style.iconBackground = QStringLiteral("#fef3c7");
        break;
    case ForceRemoveKind::RegistryKey:
        style.icon = QStringLiteral("🔑");
        style.iconBackground = QStringLiteral("#ede9fe");
        break;
    case ForceRemoveKind::StartupRegistry:
        style.icon = QStringLiteral("🚀");
        style.iconBackground = QStringLiteral("#dbeafe");
        break;
    case ForceRemoveKind::StartupShortcut:
        style.icon = QStringLiteral("📎");
        style.iconBackground = QStringLiteral("#dbeafe");
        break;
    case ForceRemoveKind::ScheduledTask:
        style.icon = QStringLiteral("⏰");
        style.iconBackground = QStringLiteral("#fef3c7");
        break;
    case ForceRemoveKind::Service:
        style.icon = QStringLiteral("⚙");
        style.iconBackground = QStringLiteral("#fef3c7");
        break;
    default:
        style.icon = QStringLiteral("📄");
        style.iconBackground = QStringLiteral("#f1f5f9");
        break;
    }
    const auto it = badges.constFind(int(kind));
    if (it != badges.constEnd()) {
        style.badge = it->first;
        const QStringList colours = it->second.split(QLatin1Char('|'));
        style.badgeBackground = colours.at(0);
        style.badgeText = colours.at(1);
    }
    return style;
}

QString ForceRemoveRowWidget::shortLabel(const QString& label)
{
    return label.size() > LabelMaxChars ? label.left(LabelCutChars) + QStringLiteral("...") : label;
}

QString ForceRemoveRowWidget::formatSize(qint64 bytes)
{
    if (bytes <= 0)
        return QStringLiteral("0 KB");
    if (bytes >= GiB)
        return QStringLiteral("%1 GB").arg(double(bytes) / GiB, 0, 'f', 1);
    if (bytes >= MiB)
        return QStringLiteral("%1 MB").arg(double(bytes) / MiB, 0, 'f', 0);
    return QStringLiteral("%1 KB").arg(double(bytes) / KiB, 0, 'f', 0);
}

QString ForceRemoveRowWidget::sizeColor(qint64 bytes)
{
    if (bytes > LargeBytes)
        return QStringLiteral("#ef4444");
    if (bytes > NoticeableBytes)
        return QStringLiteral("#f59e0b");
    return QStringLiteral("#64748b");
}

ForceRemoveRowWidget::ForceRemoveRowWidget(const ForceRemoveItem& item, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("FRRow"));
    setFixedHeight(RowHeight);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(SideMargin, 0, SideMargin, 0);
    layout->setSpacing(12);

    m_check = new QCheckBox(this);
    m_check->setObjectName(QStringLiteral("FRRowCheck"));
    m_check->setChecked(item.checked);
    // A high-risk target that the scan left unchecked (tasks, services) stays out of reach.
    m_check->setEnabled(!item.highRisk || item.checked);
    layout->addWidget(m_check);

    const KindStyle style = kindStyle(item.kind);
    auto* icon = new QLabel(style.icon, this);
    icon->setObjectName(QStringLiteral("FRRowIcon"));
    icon->setFixedSize(IconSize, IconSize);
    icon->setAlignment(Qt::AlignCenter);
    icon->setStyleSheet(QStringLiteral("background:%1; border-radius:10px; font-size:16px;").arg(style.iconBackground));
    layout->addWidget(icon);

    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    auto* text = new QLabel(shortLabel(item.label), this);
    text->setObjectName(QStringLiteral("FRRowLabel"));
    text->setToolTip(item.label);
    text->setTextFormat(Qt::PlainText);
    text->setStyleSheet(QStringLiteral("color:#1e293b; font-size:13px;"));
    column->addWidget(text);

    auto* badges = new QHBoxLayout;
    badges->setContentsMargins(0, 0, 0, 0);
    badges->setSpacing(6);
    if (!style.badge.isEmpty()) {
        auto* kindBadge = badge(style.badge,
            QStringLiteral("font-size:10px; font-weight:600; border-radius:4px; padding:1px 6px;"
                           " background:%1; color:%2;")
                .arg(style.badgeBackground, style.badgeText),
            this);
        kindBadge->setObjectName(QStringLiteral("FRRowBadge"));
        badges->addWidget(kindBadge);
    }
    if (item.highRisk) {
        auto* risk = badge(tr("⚠ High Risk"),
            QStringLiteral("font-size:10px; font-weight:700; border-radius:4px; padding:1px 6px;"
                           " background:#fef3c7; color:#d97706; border:1px solid #fcd34d;"),
            this);
        risk->setObjectName(QStringLiteral("FRRowRisk"));
        badges->addWidget(risk);
    }
    badges->addStretch();
    column->addLayout(badges);
    layout->addLayout(column, 1);

    if (item.sizeBytes >= 1) {
        auto* size = new QLabel(formatSize(item.sizeBytes), this);
        size->setObjectName(QStringLiteral("FRRowSize"));
        size->setFixedWidth(SizeWidth);
        size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        size->setStyleSheet(QStringLiteral("font-weight:600; color:%1;").arg(sizeColor(item.sizeBytes)));
        layout->addWidget(size);
    }
}

bool ForceRemoveRowWidget::isChecked() const
{
    return m_check->isChecked();
}
