#include "navbutton.h"

#include "widgets/iconpixmap.h"
#include "widgets/iconsizes.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QtMath>

namespace {

constexpr int ButtonHeight = 36;
constexpr int IconSize = iconsizes::Navigation;

} // namespace

NavButton::NavButton(const QString& icon, const QString& text, const QString& badge, QWidget* parent)
    : QPushButton(parent)
{
    setObjectName(QStringLiteral("NavButton"));
    setFixedHeight(ButtonHeight);
    setCursor(Qt::PointingHandCursor);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 0, 10, 0);

    auto* iconLabel = new QLabel(this);
    iconLabel->setFixedSize(IconSize, IconSize);
    iconLabel->setAlignment(Qt::AlignCenter);
    iconLabel->setStyleSheet(QStringLiteral("background:transparent;"));
    if (icon.startsWith(QLatin1String(":/"))) {
        iconLabel->setPixmap(iconPixmap(icon, IconSize, qApp->devicePixelRatio()));
    } else if (!icon.isEmpty()) {
        iconLabel->setText(icon);
        iconLabel->setStyleSheet(QStringLiteral("font-size:14px; background:transparent; color:white;"));
    }
    layout->addWidget(iconLabel);

    auto* textLabel = new QLabel(text, this);
    textLabel->setObjectName(QStringLiteral("NavLabel"));
    textLabel->setStyleSheet(QStringLiteral("background: transparent; color: rgba(255,255,255,0.70); font-size:13px;"));
    // The sidebar has a fixed width: an entry too long for it in some language takes a second
    // line instead of being cut at the edge.
    textLabel->setWordWrap(true);
    QSizePolicy textPolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    textPolicy.setHeightForWidth(true);
    textLabel->setSizePolicy(textPolicy);
    layout->addWidget(textLabel, 1);

    if (!badge.isEmpty()) {
        auto* badgeLabel = new QLabel(badge, this);
        badgeLabel->setAlignment(Qt::AlignCenter);
        badgeLabel->setStyleSheet(QStringLiteral("background: rgba(255,255,255,0.15);color: white;border-radius: "
                                                 "8px;font-size: 10px;font-weight: 700;padding: 1px 7px;"));
        layout->addWidget(badgeLabel);
    }
}

void NavButton::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    setProperty("active", active);
    const QString labelStyle = active
        ? QStringLiteral("background:transparent; color:#ffffff; font-size:13px; font-weight:600;")
        : QStringLiteral("background:transparent; color:rgba(255,255,255,0.65); font-size:13px;");
    const auto labels = findChildren<QLabel*>(QStringLiteral("NavLabel"));
    for (QLabel* label : labels)
        label->setStyleSheet(labelStyle);
    style()->unpolish(this);
    style()->polish(this);
    update();
}
