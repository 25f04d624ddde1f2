#include "titlebar.h"

#include "winbutton.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QSettings>

namespace {

constexpr int BarHeight = 40;
// The menu opens just below its button.
constexpr int MenuGap = 2;

const char MenuStyle[] = "QMenu { background: white; border: 1px solid #e2e8f0; border-radius: 8px; padding: 6px 4px; "
                         "min-width: 190px; }"
                         "QMenu::item { padding: 9px 16px; border-radius: 6px; margin: 2px 4px; color: #334155; "
                         "font-size: 13px; }"
                         "QMenu::item:selected { background: #f0f9ff; color: #1e40af; }"
                         "QMenu::separator { height: 1px; background: #e2e8f0; margin: 4px 8px; }";

struct LanguageEntry {
    const char* code;
    const char* label;
};

// The labels name each language in its own script and are never translated.
const LanguageEntry Languages[] = {
    { "zh_CN", "🇨🇳  Simplified Chinese" },
    { "zh_TW", "🇹🇼  Traditional Chinese" },
    { "en", "🇺🇸  English" },
    { "ja", "🇯🇵  日本語" },
    { "ko", "🇰🇷  한국어" },
    { "fr", "🇫🇷  Français" },
    { "de", "🇩🇪  Deutsch" },
    { "es", "🇪🇸  Español" },
    { "pt", "🇵🇹  Português" },
    { "it", "🇮🇹  Italiano" },
    { "nl", "🇳🇱  Nederlands" },
    { "ar", "🇸🇦  عربية" },
    { "tr", "🇹🇷  Türkçe" },
};

QWidget* topLevel(QWidget* w)
{
    return w->window();
}

} // namespace

TitleBar::TitleBar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("TitleBar"));
    setFixedHeight(BarHeight);
    setStyleSheet(QStringLiteral("QWidget#TitleBar {  background: white;  border-bottom: 1px solid #e2e8f0;}"));
    // The style sheet's background only paints on a plain QWidget with this attribute.
    setAttribute(Qt::WA_StyledBackground);

    // With nothing stored the menu marks Simplified Chinese, whatever catalogue start-up chose.
    m_currentLanguage = QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"))
                            .value(QStringLiteral("language"), QStringLiteral("zh_CN"))
                            .toString();

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 0, 0);
    layout->setSpacing(0);
    layout->addStretch();
    layout->addSpacing(8);

    m_menuButton = new WinButton(WinButton::Menu, this);
    m_minButton = new WinButton(WinButton::Minimize, this);
    m_maxButton = new WinButton(WinButton::Maximize, this);
    m_closeButton = new WinButton(WinButton::Close, this);
    m_menuButton->setObjectName(QStringLiteral("MenuButton"));
    m_minButton->setObjectName(QStringLiteral("MinimizeButton"));
    m_maxButton->setObjectName(QStringLiteral("MaximizeButton"));
    m_closeButton->setObjectName(QStringLiteral("CloseButton"));
    for (WinButton* b : { m_menuButton, m_minButton, m_maxButton, m_closeButton })
        layout->addWidget(b);

    m_menuButton->setToolTip(tr("菜单"));
    m_minButton->setToolTip(tr("最小化"));
    m_maxButton->setToolTip(tr("最大化"));
    m_closeButton->setToolTip(tr("关闭"));

    connect(m_menuButton, &QPushButton::clicked, this, &TitleBar::showMenu);
    connect(m_minButton, &QPushButton::clicked, this, &TitleBar::minimizeRequested);
    connect(m_maxButton, &QPushButton::clicked, this, &TitleBar::maximizeRequested);
    connect(m_closeButton, &QPushButton::clicked, this, &TitleBar::closeRequested);

    buildMenu();
}

void TitleBar::buildMenu()
{
    m_menu = new QMenu(this);
    m_menu->setStyleSheet(QString::fromUtf8(MenuStyle));

    QAction* about = m_menu->addAction(tr("ℹ️  Qbout Norvale"));
    connect(about, &QAction::triggered, this, &TitleBar::aboutRequested);
    m_menu->addSeparator();

    QMenu* languages = m_menu->addMenu(tr("🌐  Language"));
    languages->setStyleSheet(QString::fromUtf8(MenuStyle));
    m_languageGroup = new QActionGroup(this);
    m_languageGroup->setExclusive(true);
    for (const LanguageEntry& entry : Languages) {
        const QString code = QString::fromLatin1(entry.code);
        QAction* action = languages->addAction(QString::fromUtf8(entry.label));
        action->setCheckable(true);
        action->setData(code);
        action->setChecked(code == m_currentLanguage);
        m_languageGroup->addAction(action);
    }
    connect(m_languageGroup, &QActionGroup::triggered, this,
        [this](QAction* action) { onLanguageTriggered(action->data().toString()); });
    m_menu->addSeparator();

    QAction* help = m_menu->addAction(tr("❓  Help"));
    connect(help, &QAction::triggered, this, &TitleBar::helpRequested);
    QAction* support = m_menu->addAction(tr("💬  Support"));
    connect(support, &QAction::triggered, this, &TitleBar::supportRequested);
    m_menu->addSeparator();

    QAction* quit = m_menu->addAction(tr("Quit"));
    connect(quit, &QAction::triggered, qApp, &QApplication::quit);
}

void TitleBar::onLanguageTriggered(const QString& code)
{
    if (code == m_currentLanguage)
        return;
    m_currentLanguage = code;
    QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale")).setValue(QStringLiteral("language"), code);
    emit languageChanged(code);
}

void TitleBar::showMenu()
{
    m_menu->exec(m_menuButton->mapToGlobal(QPoint(0, m_menuButton->height() + MenuGap)));
}

void TitleBar::setMaximized(bool maximized)
{
    m_maximized = maximized;
    m_maxButton->setKind(maximized ? WinButton::Restore : WinButton::Maximize);
    m_maxButton->update();
    m_maxButton->setToolTip(maximized ? tr("还原") : tr("最大化"));
}

void TitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_dragging = true;
        m_dragOffset = event->globalPosition().toPoint() - topLevel(this)->frameGeometry().topLeft();
    }
    event->accept();
}

void TitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging && (event->buttons() & Qt::LeftButton)) {
        if (m_maximized) {
            // Restore first, then hang the normal-sized window centred under the cursor.
            emit maximizeRequested();
            m_dragOffset = QPoint(width() / 2, height() / 2);
        }
        topLevel(this)->move(event->globalPosition().toPoint() - m_dragOffset);
    }
    event->accept();
}

void TitleBar::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    event->accept();
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit maximizeRequested();
    event->accept();
}
