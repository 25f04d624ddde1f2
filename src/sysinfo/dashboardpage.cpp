#include "dashboardpage.h"

#include "systeminfoscanner.h"
#include "widgets/circlebadge.h"
#include "widgets/iconpixmap.h"
#include "widgets/iconsizes.h"
#include "widgets/ringgauge.h"

#include "platform/platform.h"
#include "platform/systemcounters.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

struct QuickAction {
    const char* icon;
    const char* title;
    const char* description;
    const char* background;
    int pageIndex;
};

const QuickAction QuickActions[] = {
    { "🧹", QT_TRANSLATE_NOOP("DashboardPage", "磁盘清理"), QT_TRANSLATE_NOOP("DashboardPage", "清理垃圾文件"),
        "#dbeafe", 1 },
    { "📦", QT_TRANSLATE_NOOP("DashboardPage", "软件卸载"), QT_TRANSLATE_NOOP("DashboardPage", "管理已装软件"),
        "#f3e8ff", 2 },
    { "🪟", QT_TRANSLATE_NOOP("DashboardPage", "Windows App"), QT_TRANSLATE_NOOP("DashboardPage", "管理UWP应用"),
        "#dcfce7", 3 },
    { "🧩", QT_TRANSLATE_NOOP("DashboardPage", "浏览器扩展"), QT_TRANSLATE_NOOP("DashboardPage", "管理扩展插件"),
        "#fef3c7", 4 },
};

constexpr quint64 MsPerDay = 86'400'000;
constexpr quint64 MsPerHour = 3'600'000;
constexpr quint64 MsPerMinute = 60'000;

const char* const CardStyle = "QWidget {  background:white; border-radius:14px;}";

int gaugeValue(qint64 percent)
{
    return int(qBound(qint64(0), percent, qint64(100)));
}

QString gigabytes(quint64 used, quint64 total)
{
    return QStringLiteral("%1/%2 GB").arg(used).arg(total);
}

} // namespace

DashboardPage::DashboardPage(QWidget* parent)
    : QWidget(parent)
    , m_scanner(new SystemInfoScanner(this))
{
    // The scanner's first reports come from a pool thread.
    connect(
        m_scanner, &SystemInfoScanner::metricsUpdated, this, &DashboardPage::onMetricsUpdated, Qt::QueuedConnection);
    connect(
        m_scanner, &SystemInfoScanner::staticInfoReady, this, &DashboardPage::onStaticInfoReady, Qt::QueuedConnection);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createHeader());

    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setStyleSheet(QStringLiteral("QScrollArea { background:#f0f7ff; }"));
    auto* content = new QWidget(scroll);
    content->setStyleSheet(QStringLiteral("background:#f0f7ff;"));
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(24, 20, 24, 24);
    contentLayout->setSpacing(16);
    // Handed to the scroll area while still empty: setWidget sizes the widget at once, and with its
    // rows in place that would lay out every text before the window is first shown.
    scroll->setWidget(content);
    contentLayout->addWidget(createHeroCard());
    contentLayout->addWidget(createGaugesCard());
    contentLayout->addWidget(createQuickActionsCard());
    contentLayout->addStretch();
    layout->addWidget(scroll, 1);
}

void DashboardPage::start()
{
    m_scanner->loadStaticInfo();
    m_scanner->startMonitoring();
}

QWidget* DashboardPage::createHeader()
{
    auto* header = new QWidget(this);
    header->setAttribute(Qt::WA_StyledBackground);
    header->setFixedHeight(60);
    header->setStyleSheet(QStringLiteral("background:white; border-bottom:1px solid #e2e8f0;"));
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(24, 0, 24, 0);

    auto* title = new QLabel(tr("系统概览"), header);
    title->setStyleSheet(QStringLiteral("font-size:17px; font-weight:700; color:#0f172a;"));
    auto* live = new QLabel(tr("● 实时"), header);
    live->setStyleSheet(QStringLiteral("font-size:12px; color:#10b981; font-weight:600;"));
    layout->addWidget(title);
    layout->addStretch();
    layout->addWidget(live);
    return header;
}

QWidget* DashboardPage::createHeroCard()
{
    auto* card = new QWidget(this);
    card->setObjectName(QStringLiteral("HeroCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setFixedHeight(110);
    card->setStyleSheet(QStringLiteral("QWidget#HeroCard {  background: qlineargradient(x1:0,y1:0,x2:1,y2:0,    "
                                       "stop:0 #0f2d6b, stop:0.6 #1d4ed8, stop:1 #0ea5e9);  border-radius: 16px;}"));
    auto* layout = new QHBoxLayout(card);
    layout->setContentsMargins(24, 0, 24, 0);
    layout->setSpacing(20);

    auto* logo = new CircleBadge(card);
    logo->setFixedSize(60, 60);
    const QPixmap logoPixmap
        = iconPixmap(QStringLiteral(":/icons/icons/windows-logo.svg"), iconsizes::WindowsLogo, devicePixelRatioF());
    if (!logoPixmap.isNull())
        logo->setPixmap(logoPixmap);
    layout->addWidget(logo);

    auto* textColumn = new QVBoxLayout;
    textColumn->setContentsMargins(0, 0, 0, 0);
    textColumn->setSpacing(0);
    m_osLabel = new QLabel(tr("正在读取系统信息…"), card);
    m_osLabel->setObjectName(QStringLiteral("DashboardOsLabel"));
    m_osLabel->setFixedHeight(18);
    m_osLabel->setStyleSheet(QStringLiteral("font-size:16px; font-weight:700; color:white; background:transparent;"));
    m_buildLabel = new QLabel(card);
    m_buildLabel->setObjectName(QStringLiteral("DashboardBuildLabel"));
    m_buildLabel->setFixedHeight(12);
    m_buildLabel->setStyleSheet(
        QStringLiteral("font-size:12px; color:rgba(255,255,255,0.75); background:transparent;"));
    m_uptimeLabel = new QLabel(card);
    m_uptimeLabel->setObjectName(QStringLiteral("DashboardUptimeLabel"));
    m_uptimeLabel->setFixedHeight(12);
    m_uptimeLabel->setStyleSheet(
        QStringLiteral("font-size:11px; color:rgba(255,255,255,0.55); background:transparent;"));
    textColumn->addWidget(m_osLabel);
    textColumn->addWidget(m_buildLabel);
    textColumn->addWidget(m_uptimeLabel);
    layout->addLayout(textColumn, 1);

    auto* updatesColumn = new QVBoxLayout;
    updatesColumn->setSpacing(4);
    updatesColumn->setAlignment(Qt::AlignCenter);
    m_updatesBadge = new CircleBadge(card);
    m_updatesBadge->setObjectName(QStringLiteral("DashboardUpdatesBadge"));
    m_updatesBadge->setFixedSize(64, 64);
    m_updatesBadge->setText(QStringLiteral("…"));
    auto* caption = new QLabel(tr("已安装更新"), card);
    caption->setAlignment(Qt::AlignCenter);
    caption->setStyleSheet(QStringLiteral("font-size:11px; color:rgba(255,255,255,0.65); background:transparent;"));
    updatesColumn->addWidget(m_updatesBadge, 0, Qt::AlignHCenter);
    updatesColumn->addWidget(caption, 0, Qt::AlignHCenter);
    layout->addLayout(updatesColumn);
    return card;
}

QWidget* DashboardPage::createGaugesCard()
{
    auto* card = new QWidget(this);
    card->setObjectName(QStringLiteral("GaugesCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setStyleSheet(QString::fromLatin1(CardStyle));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);

    auto* caption = new QLabel(tr("实时性能"), card);
    caption->setStyleSheet(QStringLiteral("font-size:13px; font-weight:700; color:#0f172a;background:transparent;"));
    layout->addWidget(caption);

    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    m_cpuGauge = new RingGauge(QStringLiteral("CPU"), QColor(QStringLiteral("#3b82f6")), card);
    m_cpuGauge->setObjectName(QStringLiteral("DashboardCpuGauge"));
    m_memGauge = new RingGauge(tr("内存"), QColor(QStringLiteral("#8b5cf6")), card);
    m_memGauge->setObjectName(QStringLiteral("DashboardMemoryGauge"));
    m_diskGauge = new RingGauge(tr("磁盘"), QColor(QStringLiteral("#10b981")), card);
    m_diskGauge->setObjectName(QStringLiteral("DashboardDiskGauge"));
    for (RingGauge* gauge : { m_cpuGauge, m_memGauge, m_diskGauge }) {
        gauge->setFixedSize(130, 130);
        row->addWidget(gauge);
    }
    layout->addLayout(row);
    return card;
}

QWidget* DashboardPage::createQuickActionsCard()
{
    auto* card = new QWidget(this);
    card->setObjectName(QStringLiteral("QuickActionsCard"));
    card->setAttribute(Qt::WA_StyledBackground);
    card->setStyleSheet(QString::fromLatin1(CardStyle));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);

    auto* caption = new QLabel(tr("快速操作"), card);
    caption->setStyleSheet(QStringLiteral("font-size:13px; font-weight:700; color:#0f172a; background:transparent;"));
    layout->addWidget(caption);

    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (const QuickAction& action : QuickActions) {
        auto* button = new QPushButton(card);
        button->setFixedHeight(72);
        button->setCursor(Qt::PointingHandCursor);
        button->setStyleSheet(QStringLiteral("QPushButton {  background:%1; border:none; border-radius:10px;}"
                                             "QPushButton:hover { filter:brightness(0.95); }")
                                  .arg(QLatin1String(action.background)));
        // Centred by stretches rather than by the layout's alignment, so the labels get the tile's
        // whole width and a long title (German, say) wraps inside the tile instead of being cut.
        auto* inner = new QVBoxLayout(button);
        inner->setContentsMargins(8, 0, 8, 0);
        inner->setSpacing(3);
        inner->addStretch(1);

        auto* title
            = new QLabel(QStringLiteral("%1  %2").arg(QString::fromUtf8(action.icon), tr(action.title)), button);
        title->setAlignment(Qt::AlignCenter);
        title->setStyleSheet(QStringLiteral("font-size:12px; font-weight:600; color:#1e293b; background:transparent;"));
        auto* description = new QLabel(tr(action.description), button);
        description->setAlignment(Qt::AlignCenter);
        description->setStyleSheet(QStringLiteral("font-size:10px; color:#64748b; background:transparent;"));
        // The whole tile is the button; the labels only show text.
        for (QLabel* label : { title, description }) {
            label->setAttribute(Qt::WA_TransparentForMouseEvents);
            label->setWordWrap(true);
            label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
            inner->addWidget(label);
        }
        inner->addStretch(1);

        const int index = action.pageIndex;
        connect(button, &QPushButton::clicked, this, [this, index] { emit navigateTo(index); });
        row->addWidget(button, 1);
    }
    layout->addLayout(row);
    return card;
}

void DashboardPage::onMetricsUpdated(const SystemMetrics& metrics)
{
    m_cpuGauge->setValue(gaugeValue(metrics.cpuPercent));
    m_cpuGauge->setDetail(tr("%1 核").arg(m_scanner->cpuCores()));
    m_cpuGauge->update();

    m_memGauge->setValue(gaugeValue(qint64(metrics.memPercent)));
    m_memGauge->setDetail(gigabytes(metrics.memUsedMB >> 10, metrics.memTotalMB >> 10));
    m_memGauge->update();

    m_diskGauge->setValue(gaugeValue(metrics.diskPercent));
    m_diskGauge->setDetail(gigabytes(metrics.diskUsedGB, metrics.diskTotalGB));
    m_diskGauge->update();
}

void DashboardPage::onStaticInfoReady()
{
    const QString osName = m_scanner->osName();
    m_osLabel->setText(osName.isEmpty() ? QStringLiteral("Windows") : osName);
    m_buildLabel->setText(m_scanner->buildText());

    const quint64 ms = platform::current().counters().tickCount();
    const quint64 days = ms / MsPerDay;
    const quint64 hours = (ms % MsPerDay) / MsPerHour;
    const quint64 minutes = (ms % MsPerHour) / MsPerMinute;
    if (days == 0)
        m_uptimeLabel->setText(tr("已运行 %1 小时 %2 分钟").arg(hours).arg(minutes));
    else
        m_uptimeLabel->setText(tr("已运行 %1 天 %2 小时").arg(days).arg(hours));

    m_updatesBadge->setText(QString::number(m_scanner->updatesInstalled()));
    m_updatesBadge->update();
}
