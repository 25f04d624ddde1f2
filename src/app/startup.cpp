#include "startup.h"

#include "links/linkmanager.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QSettings>
#include <QStyleFactory>
#include <QTranslator>

namespace Startup {

void applyIdentity()
{
    QApplication::setApplicationName(QStringLiteral("Norvale"));
    QApplication::setApplicationVersion(QStringLiteral("7.0"));
    QApplication::setOrganizationName(QStringLiteral("Brightfen"));
    QApplication::setOrganizationDomain(QStringLiteral("brightfen.com"));
}

void applyStyleAndPalette()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    const QColor ink(30, 30, 50);
    const QColor white(255, 255, 255);
    const struct {
        QPalette::ColorRole role;
        QColor color;
    } roles[] = {
        { QPalette::Window, white },
        { QPalette::WindowText, ink },
        { QPalette::Base, white },
        { QPalette::AlternateBase, QColor(245, 245, 250) },
        { QPalette::Text, ink },
        { QPalette::Button, white },
        { QPalette::ButtonText, ink },
        { QPalette::Highlight, QColor(219, 234, 254) },
        { QPalette::HighlightedText, QColor(37, 99, 235) },
        { QPalette::ToolTipBase, white },
        { QPalette::ToolTipText, ink },
    };
    QPalette palette;
    for (const auto& entry : roles)
        palette.setColor(QPalette::All, entry.role, entry.color);
    QApplication::setPalette(palette);
}

void applyFont()
{
    QFont font(QStringLiteral("Segoe UI"), 9, QFont::Normal, false);
    font.setStyleHint(QFont::SansSerif, QFont::PreferDefault);
    QApplication::setFont(font);
}

QString chooseTranslationCode(const QString& storedLanguage, const QString& systemLocaleName)
{
    // A stored code is taken as it stands, even one without a catalogue: the user (or a hand
    // edit) chose it, and the loader reports the missing catalogue.
    if (!storedLanguage.isEmpty())
        return storedLanguage;
    qDebug() << "[Main] System language:" << systemLocaleName;
    return LinkManager::mapLocaleName(systemLocaleName);
}

QString setUpTranslation()
{
    qDebug() << "========== Translation Init ==========";
    const QString stored = QSettings(QStringLiteral("Brightfen"), QStringLiteral("Norvale"))
                               .value(QStringLiteral("language"), QString())
                               .toString();
    const QString code = chooseTranslationCode(stored, QLocale::system().name());
    qDebug() << "[Main] Translation code:" << code;

    // Qt reads the layout direction from this entry of the installed catalogue (Arabic answers
    // "RTL"). Nothing in the program asks for it by name, so it is named here for lupdate, which
    // would otherwise drop it from every catalogue as obsolete.
    struct CatalogueEntry {
        const char* source;
        const char* comment;
    };
    [[maybe_unused]] constexpr CatalogueEntry layoutDirection
        = QT_TRANSLATE_NOOP3("QGuiApplication", "QT_LAYOUT_DIRECTION",
            "Translate this string to the string 'LTR' in left-to-right languages or to 'RTL' in right-to-left "
            "languages (such as Hebrew and Arabic) to get proper widget layout.");

    static QTranslator translator;
    const QString qmPath = QString::fromLatin1(QmPathPattern).arg(code);
    qDebug() << "[Main] QM file:" << qmPath;
    if (translator.load(qmPath)) {
        if (QApplication::installTranslator(&translator))
            qDebug() << "[Main] Translation loaded:" << code;
    } else {
        qDebug() << "[Main] Translation not found, using default";
    }
    qDebug() << "=====================================";
    return code;
}

void applyStyleSheet(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    file.close();
}

void prepareApplication()
{
    applyIdentity();
    applyStyleAndPalette();
    applyFont();
    // Two statements: in one, the link catalogue would be created (and log) before the
    // translation block that has to precede it.
    const QString code = setUpTranslation();
    LinkManager::instance()->setLanguage(code);
    applyStyleSheet();
}

} // namespace Startup
