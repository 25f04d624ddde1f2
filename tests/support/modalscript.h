#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

#include <functional>

// Hands each modal window, as it opens, to the next step, and keeps what it showed. A window
// that comes when no step is left is rejected, so an unexpected question fails the case instead
// of hanging it.
class ModalScript final : public QObject {
public:
    using Step = std::function<void(QWidget*)>;

    explicit ModalScript(QList<Step> steps)
        : m_steps(std::move(steps))
    {
        connect(&m_timer, &QTimer::timeout, this, &ModalScript::poll);
        m_timer.start(10);
    }

    // Clicks the button of that text (mnemonics ignored); rejects the window if it has none.
    static Step press(const QString& text)
    {
        return [text](QWidget* modal) {
            for (QAbstractButton* button : modal->findChildren<QAbstractButton*>()) {
                if (button->text().remove(QLatin1Char('&')) == text) {
                    button->click();
                    return;
                }
            }
            static_cast<QDialog*>(modal)->reject();
        };
    }
    static QList<Step> pressing(const QStringList& texts)
    {
        QList<Step> steps;
        for (const QString& text : texts)
            steps.append(press(text));
        return steps;
    }

    // The object name, or the title where it has none; of message boxes also the two texts.
    QStringList seen, texts, informatives;

private:
    void poll()
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || modal->property("scripted").toBool())
            return;
        modal->setProperty("scripted", true);
        seen << (modal->objectName().isEmpty() ? modal->windowTitle() : modal->objectName());
        const auto* box = qobject_cast<QMessageBox*>(modal);
        texts << (box ? box->text() : QString());
        informatives << (box ? box->informativeText() : QString());
        if (m_steps.isEmpty())
            static_cast<QDialog*>(modal)->reject();
        else
            m_steps.takeFirst()(modal);
    }

    QList<Step> m_steps;
    QTimer m_timer;
};
