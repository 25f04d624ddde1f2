#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>

// Installs packages with the Windows Package Manager ("winget"), one process at a time, and
// reports each package's progress and result. Runs on the thread that owns it, driven by the
// process's signals.
class WinGetManager final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WinGetManager)
public:
    Q_INVOKABLE explicit WinGetManager(QObject* parent = nullptr);

    // Appends the identifiers and, when no package is running, starts the next one. Clears a
    // stop requested earlier.
    void enqueue(const QStringList& ids);
    // Lets the running package finish and starts no further one; the rest stays queued.
    void stopAfterCurrent();

    QStringList queue() const { return m_queue; }
    QString currentId() const { return m_currentId; }
    bool isRunning() const { return m_process->state() != QProcess::NotRunning; }

    // One line of the tool's output, as read from the process.
    void handleOutputLine(const QByteArray& raw);

signals:
    void packageStarted(const QString& id);
    void packageProgress(const QString& id, int percent);
    void packageFinished(const QString& id, bool success, const QString& msg);
    void allFinished();
    void outputLine(const QString& line);

private slots:
    void onProcessOutput();
    void onProcessFinished(int code, QProcess::ExitStatus status);

private:
    void startNext();

    QProcess* m_process = nullptr;
    QStringList m_queue;
    QString m_currentId;
    bool m_busy = false; // set: no further package is started
};

Q_DECLARE_METATYPE(WinGetManager*)
