#include "sidebar.h"

#include "navbutton.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmap>
#include <QRadialGradient>
#include <QVBoxLayout>

namespace {

constexpr int SidebarWidth = 224;
constexpr int BrandHeight = 80;
constexpr int LogoSize = 34;

} // namespace

Sidebar::Sidebar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("Sidebar"));
    setFixedWidth(SidebarWidth);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createBrandBlock());
    layout->addWidget(createNavigation(), 1);

    setActive(0);
}

QWidget* Sidebar::createBrandBlock()
{
    auto* brand = new QWidget(this);
    brand->setObjectName(QStringLiteral("BrandWidget"));
    brand->setFixedHeight(BrandHeight);
    auto* column = new QVBoxLayout(brand);
    column->setContentsMargins(18, 18, 18, 10);
    column->setSpacing(3);

    auto* row = new QHBoxLayout;
    row->setSpacing(10);

    auto* logo = new QLabel(brand);
    logo->setObjectName(QStringLiteral("BrandLogo"));
    logo->setFixedSize(LogoSize, LogoSize);
    logo->setAlignment(Qt::AlignCenter);
    const QPixmap source(QStringLiteral(":/icons/icons/logo.ico"));
    if (!source.isNull()) {
        const qreal ratio = devicePixelRatioF();
        const int side = qRound(LogoSize * ratio);
        QPixmap scaled = source.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(ratio);
        logo->setPixmap(scaled);
        logo->setStyleSheet(QStringLiteral("background:transparent;"));
    } else {
        // Keeps the brand row's shape when the icon is missing.
        logo->setStyleSheet(QStringLiteral("background: rgba(255,255,255,0.20);border-radius: 10px;border: 1px solid "
                                           "rgba(255,255,255,0.15);"));
    }
    row->addWidget(logo);

    auto* names = new QVBoxLayout;
    names->setSpacing(2);
    auto* name = new QLabel(QStringLiteral("Norvale"), brand);
    name->setObjectName(QStringLiteral("BrandNameLabel"));
    names->addWidget(name);
    row->addLayout(names, 1);

    column->addLayout(row);
    return brand;
}

QWidget* Sidebar::createNavigation()
{
    auto* nav = new QWidget(this);
    auto* layout = new QVBoxLayout(nav);
    layout->setContentsMargins(10, 12, 10, 0);
    layout->setSpacing(2);

    layout->addSpacing(10);
    auto* caption = new QLabel(tr("功能"), nav);
    caption->setObjectName(QStringLiteral("NavSectionLabel"));
    layout->addWidget(caption);
    layout->addSpacing(3);

    const struct {
        const char* icon;
        QString text;
    } entries[] = {
        { ":/icons/icons/home.svg", tr("系统概览") },
        { ":/icons/icons/cleanup.svg", tr("磁盘清理") },
        { ":/icons/icons/uninstall.svg", tr("软件卸载") },
        { ":/icons/icons/winapps.svg", tr("Windows App") },
        { ":/icons/icons/extensions.svg", tr("浏览器扩展") },
    };
    for (const auto& entry : entries) {
        const int index = m_buttons.size();
        auto* button = new NavButton(QString::fromLatin1(entry.icon), entry.text, QString(), nav);
        connect(button, &QPushButton::clicked, this, [this, index] {
            setActive(index);
            emit pageRequested(index);
        });
        m_buttons.append(button);
        layout->addWidget(button);
    }
    layout->addStretch();
    return nav;
}

void Sidebar::setActive(int index)
{
    for (int i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setActive(i == index);
    m_activeIndex = index;
}

void Sidebar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    QLinearGradient base(0, 0, 0, height());
    base.setColorAt(0, QColor(15, 45, 107));
    base.setColorAt(0.45, QColor(26, 74, 176));
    base.setColorAt(1, QColor(14, 114, 164));
    painter.fillRect(rect(), base);

    QRadialGradient glow(0.3 * width(), 0, 160);
    glow.setColorAt(0, QColor(100, 180, 255, 40));
    glow.setColorAt(1, QColor(100, 180, 255, 0));
    painter.fillRect(rect(), glow);
}
