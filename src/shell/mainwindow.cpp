#include "mainwindow.h"

#include "browserext/browserextpage.h"
#include "cleanup/cleanuppage.h"
#include "links/linkmanager.h"
#include "platform/platform.h"
#include "platform/windowframe.h"
#include "sidebar.h"
#include "sysinfo/dashboardpage.h"
#include "titlebar.h"
#include "uninstall/uninstallpage.h"
#include "winapps/winappspage.h"

#include <QApplication>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QStackedWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace {

const char ContainerStyle[] = "QWidget#MainContainer { background: #f0f7ff; }";

const char AboutStyle[] = "QMessageBox { background: white; }QPushButton { background:#1d4ed8; color:white; "
                          "border:none;  border-radius:6px; padding:6px 20px; min-width:70px; }QPushButton:hover { "
                          "background:#1e40af; }";

// Fixed and untranslated on purpose: product name, version and maker read the same everywhere.
const char AboutText[]
    = "<h3 style='margin-bottom:6px;'>Norvale</h3>"
      "<p style='color:#64748b; font-size:12px; margin-top:0;'>Version 7.0 &nbsp;&middot;&nbsp; Brightfen</p>"
      "<p style='font-size:13px; line-height:1.6;'>Norvale is a lightweight Windows system optimizer designed to help "
      "you clean up junk files, uninstall unwanted software, manage UWP apps, and remove browser extensions — keeping "
      "your PC fast and clutter-free.</p>"
      "<p style='color:#94a3b8; font-size:11px;'>© 2026 Brightfen. All rights reserved.<br>"
      "<a style='color:#2563eb;' href='https://www.brightfen.com'>www.brightfen.com</a></p>";

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QWidget(parent)
{
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setMinimumSize(980, 680);
    resize(980, 700);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(0);
    m_mainContainer = new QWidget(this);
    m_mainContainer->setObjectName(QStringLiteral("MainContainer"));
    m_mainContainer->setStyleSheet(QString::fromLatin1(ContainerStyle));
    outer->addWidget(m_mainContainer);

    auto* row = new QHBoxLayout(m_mainContainer);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_sidebar = new Sidebar(m_mainContainer);
    row->addWidget(m_sidebar);
    auto* rightPanel = new QWidget(m_mainContainer);
    rightPanel->setObjectName(QStringLiteral("RightPanel"));
    rightPanel->setStyleSheet(QStringLiteral("QWidget#RightPanel { background: transparent; }"));
    row->addWidget(rightPanel, 1);

    auto* column = new QVBoxLayout(rightPanel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_titleBar = new TitleBar(rightPanel);
    column->addWidget(m_titleBar);
    m_pageStack = new QStackedWidget(rightPanel);
    column->addWidget(m_pageStack, 1);

    m_dashboardPage = new DashboardPage(m_pageStack);
    m_cleanupPage = new CleanupPage(m_pageStack);
    m_uninstallPage = new UninstallPage(m_pageStack);
    m_winAppsPage = new WinAppsPage(m_pageStack);
    m_browserExtPage = new BrowserExtPage(m_pageStack);
    m_pageStack->addWidget(m_dashboardPage);
    m_pageStack->addWidget(m_cleanupPage);
    m_pageStack->addWidget(m_uninstallPage);
    m_pageStack->addWidget(m_winAppsPage);
    m_pageStack->addWidget(m_browserExtPage);
    m_pageStack->setCurrentIndex(Dashboard);

    connect(m_titleBar, &TitleBar::minimizeRequested, this, &QWidget::showMinimized);
    connect(m_titleBar, &TitleBar::maximizeRequested, this, &MainWindow::onToggleMaximize);
    connect(m_titleBar, &TitleBar::closeRequested, this, &QWidget::close);
    connect(m_titleBar, &TitleBar::helpRequested, this, &MainWindow::onHelp);
    connect(m_titleBar, &TitleBar::supportRequested, this, &MainWindow::onSupport);
    connect(m_titleBar, &TitleBar::aboutRequested, this, &MainWindow::onAbout);
    connect(m_titleBar, &TitleBar::languageChanged, this, &MainWindow::onLanguageChanged);
    connect(m_sidebar, &Sidebar::pageRequested, this, &MainWindow::navigateTo);
    connect(m_dashboardPage, &DashboardPage::navigateTo, this, &MainWindow::navigateTo);

    m_dashboardStarted = true;
    m_dashboardPage->start();

    platform::current().windowFrame().applyRoundedFrame(static_cast<std::uintptr_t>(winId()));

    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(pos() + (screen->geometry().center() - rect().center()));
}

QString MainWindow::languageDisplayName(const QString& code)
{
    static const QHash<QString, QString> names = {
        { QStringLiteral("zh_CN"), QStringLiteral("Simplified Chinese") },
        { QStringLiteral("zh_TW"), QStringLiteral("Traditional Chinese") },
        { QStringLiteral("en"), QStringLiteral("English") },
        { QStringLiteral("ja"), QStringLiteral("日本語") },
        { QStringLiteral("ko"), QStringLiteral("한국어") },
        { QStringLiteral("fr"), QStringLiteral("Français") },
        { QStringLiteral("de"), QStringLiteral("Deutsch") },
        { QStringLiteral("es"), QStringLiteral("Español") },
    };
    return names.value(code, code);
}

void MainWindow::navigateTo(int index)
{
    m_pageStack->setCurrentIndex(index);
    m_sidebar->setActive(index);

    // Each flag is set before the call so a re-entrant visit cannot start a second load.
    if (index == Uninstall && !m_uninstallLoaded) {
        m_uninstallLoaded = true;
        emit firstVisitStarted(index);
        m_uninstallPage->startFirstLoad();
    } else if (index == WinApps && !m_winAppsLoaded) {
        m_winAppsLoaded = true;
        emit firstVisitStarted(index);
        m_winAppsPage->startScan();
    } else if (index == BrowserExtensions && !m_extensionsLoaded) {
        m_extensionsLoaded = true;
        emit firstVisitStarted(index);
        m_browserExtPage->startScan();
    }
}

bool MainWindow::isInTitleBar(const QPoint& globalPos) const
{
    return m_titleBar->rect().contains(m_titleBar->mapFromGlobal(globalPos));
}

void MainWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !m_maximized) {
        const QPoint global = event->globalPosition().toPoint();
        if (isInTitleBar(global)) {
            m_dragging = true;
            m_dragOffset = global - frameGeometry().topLeft();
        }
    }
    QWidget::mousePressEvent(event);
}

void MainWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging)
        move(event->globalPosition().toPoint() - m_dragOffset);
    QWidget::mouseMoveEvent(event);
}

void MainWindow::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    QWidget::mouseReleaseEvent(event);
}

void MainWindow::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && isInTitleBar(event->globalPosition().toPoint()))
        onToggleMaximize();
    QWidget::mouseDoubleClickEvent(event);
}

void MainWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
}

void MainWindow::onToggleMaximize()
{
    if (m_maximized) {
        showNormal();
        m_maximized = false;
    } else {
        showMaximized();
        m_maximized = true;
    }
    m_mainContainer->setStyleSheet(QString::fromLatin1(ContainerStyle));
    m_titleBar->setMaximized(m_maximized);
}

void MainWindow::onAbout()
{
    QMessageBox box(this);
    box.setWindowTitle(tr("About Norvale"));
    box.setTextFormat(Qt::RichText);
    box.setStyleSheet(QString::fromLatin1(AboutStyle));
    box.setText(QString::fromUtf8(AboutText));
    box.exec();
}

void MainWindow::onHelp()
{
    QDesktopServices::openUrl(
        QUrl(LinkManager::instance()->getLink(QStringLiteral("support"), QStringLiteral("help"))));
}

void MainWindow::onSupport()
{
    QDesktopServices::openUrl(
        QUrl(LinkManager::instance()->getLink(QStringLiteral("menu"), QStringLiteral("support"))));
}

void MainWindow::onLanguageChanged(const QString& languageCode)
{
    QMessageBox::information(this, tr("Language Changed"),
        tr("Language changed to: %1\nThe application will restart now.").arg(languageDisplayName(languageCode)),
        QMessageBox::Ok);

    const QStringList arguments = QApplication::arguments().mid(1);
    if (QProcess::startDetached(QApplication::applicationFilePath(), arguments, QString())) {
        QApplication::quit();
    } else {
        QMessageBox::warning(
            this, tr("Restart Failed"), tr("Please restart the application manually."), QMessageBox::Ok);
    }
}
