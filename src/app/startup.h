#pragma once

#include <QString>

class QApplication;

// The process-wide set-up that every window relies on, in the order start-up runs it.
namespace Startup {

inline constexpr char QmPathPattern[] = ":/translations/translations/Norvale_%1.qm";
inline constexpr char StyleSheetPath[] = ":/styles/main.qss";

void applyIdentity();
void applyStyleAndPalette();
void applyFont();

// The catalogue code from the stored "language" value, or from the system locale name when
// nothing is stored. Logs the system language only when it is consulted.
QString chooseTranslationCode(const QString& storedLanguage, const QString& systemLocaleName);

// Reads the settings store and the system locale, logs the choice, loads and installs the
// catalogue; returns the chosen code whether or not a catalogue was found.
QString setUpTranslation();

// A style sheet that cannot be opened is ignored: Fusion and the palette still give a usable look.
void applyStyleSheet(const QString& path = QString::fromLatin1(StyleSheetPath));

// Everything between creating the application object and creating the main window, in order:
// identity, style and palette, font, catalogue, the link catalogue's language, style sheet.
// The program, the screenshot tool and the start-up benchmark all start the same way.
void prepareApplication();

} // namespace Startup
