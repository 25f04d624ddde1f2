#include "residuerowwidget.h"

#include "residuedialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int RowHeight = 56;
constexpr int SizeWidth = 70;
constexpr int BadgeHeight = 17;
constexpr qint64 MiB = 1024 * 1024;
constexpr qint64 RedAbove = 100 * MiB;
constexpr qint64 AmberAbove = 10 * MiB;

const char* const BadgeStyle = "color:%1; background:%2; font-size:10px; font-weight:600; border-radius:4px; "
                               "padding:1px 6px;";

QLabel* badge(const QString& text, const char* color, const char* background, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setStyleSheet(QString::fromLatin1(BadgeStyle).arg(QLatin1String(color), QLatin1String(background)));
    label->setFixedHeight(BadgeHeight);
    return label;
}

} // namespace

ResidueRowWidget::ResidueRowWidget(const ResidueItem& item, QWidget* parent)
    : QWidget(parent)
    , m_item(item)
{
    setFixedHeight(RowHeight);
    setObjectName(QStringLiteral("ResidueRow"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#ResidueRow { background:white; border-bottom:1px solid #f1f5f9; }"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 14, 0);
    layout->setSpacing(10);

    m_check = new QCheckBox(this);
    m_check->setObjectName(QStringLiteral("ResidueCheck"));
    m_check->setChecked(item.checked);
    m_check->setCursor(Qt::PointingHandCursor);
    m_check->setStyleSheet(
        QStringLiteral("QCheckBox::indicator { width:16px; height:16px; border-radius:4px; border:1px solid #cbd5e1; "
                       "background:white; }"
                       "QCheckBox::indicator:checked { background:#2563eb; border:1px solid #2563eb; }"));
    layout->addWidget(m_check);

    auto* icon = new QLabel(categoryIcon(item.category), this);
    icon->setObjectName(QStringLiteral("ResidueIcon"));
    icon->setFixedSize(36, 36);
    icon->setAlignment(Qt::AlignCenter);
    static const char* const tints[] = { "#fef3c7", "#dbeafe", "#f0fdf4", "#fee2e2", "#f3f4f6" };
    const char* tint = item.category >= 0 && item.category < 5 ? tints[item.category] : "#f3f4f6";
    icon->setStyleSheet(QStringLiteral("background:%1; border-radius:10px; font-size:16px;").arg(QLatin1String(tint)));
    layout->addWidget(icon);

    auto* texts = new QVBoxLayout;
    texts->setContentsMargins(0, 0, 0, 0);
    texts->setSpacing(2);
    texts->addStretch();
    auto* titleLine = new QHBoxLayout;
    titleLine->setSpacing(6);
    auto* name = new QLabel(item.name, this);
    name->setObjectName(QStringLiteral("ResidueName"));
    name->setTextFormat(Qt::PlainText);
    name->setStyleSheet(QStringLiteral("font-size:12px; font-weight:500; color:#0f172a;"));
    titleLine->addWidget(name);
    auto* category = badge(categoryLabel(item.category), "#2563eb", "#dbeafe", this);
    category->setObjectName(QStringLiteral("ResidueCategoryBadge"));
    titleLine->addWidget(category);
    auto* safety
        = item.safe ? badge(tr("Safe"), "#059669", "#d1fae5", this) : badge(tr("Confirm"), "#d97706", "#fef3c7", this);
    safety->setObjectName(QStringLiteral("ResidueSafetyBadge"));
    titleLine->addWidget(safety);
    titleLine->addStretch();
    texts->addLayout(titleLine);
    auto* path = new QLabel(item.path, this);
    path->setObjectName(QStringLiteral("ResiduePath"));
    path->setTextFormat(Qt::PlainText);
    path->setStyleSheet(QStringLiteral("font-size:11px; color:#64748b;"));
    path->setToolTip(item.path);
    // A long path must not widen the row.
    path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    texts->addWidget(path);
    texts->addStretch();
    layout->addLayout(texts, 1);

    auto* size = new QLabel(ResidueDialog::formatSize(item.size), this);
    size->setObjectName(QStringLiteral("ResidueSize"));
    size->setFixedWidth(SizeWidth);
    size->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    size->setStyleSheet(QStringLiteral("font-size:12px; font-weight:600; color:%1;").arg(sizeColor(item.size)));
    layout->addWidget(size);
}

bool ResidueRowWidget::isChecked() const
{
    return m_check->isChecked();
}

void ResidueRowWidget::setChecked(bool checked)
{
    m_check->setChecked(checked);
}

QString ResidueRowWidget::categoryLabel(int category)
{
    switch (category) {
    case ResidueItem::OrphanedAppData:
        return tr("Orphaned App Data");
    case ResidueItem::Cache:
        return tr("Cache Files");
    case ResidueItem::Logs:
        return tr("Log Files");
    case ResidueItem::CrashReports:
        return tr("Crash Reports");
    case ResidueItem::Temp:
        return tr("Temp Files");
    default:
        return QString();
    }
}

QString ResidueRowWidget::categoryIcon(int category)
{
    switch (category) {
    case ResidueItem::OrphanedAppData:
        return QStringLiteral("\U0001F47B");
    case ResidueItem::Cache:
        return QStringLiteral("\U0001F5C2");
    case ResidueItem::Logs:
        return QStringLiteral("\U0001F4CB");
    case ResidueItem::CrashReports:
        return QStringLiteral("\U0001F4A5");
    case ResidueItem::Temp:
        return QStringLiteral("\U0001F321");
    default:
        return QString();
    }
}

QString ResidueRowWidget::sizeColor(qint64 bytes)
{
    if (bytes > RedAbove)
        return QStringLiteral("#ef4444");
    if (bytes > AmberAbove)
        return QStringLiteral("#f59e0b");
    return QStringLiteral("#64748b");
}
