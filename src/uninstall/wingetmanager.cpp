#include "wingetmanager.h"

#include <QRegularExpression>

WinGetManager::WinGetManager(QObject* parent)
    : QObject(parent)
    , m_process(new QProcess(this))
{
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &WinGetManager::onProcessOutput);
    connect(m_process, &QProcess::finished, this, &WinGetManager::onProcessFinished);
}

void WinGetManager::enqueue(const QStringList& ids)
{
    m_queue << ids;
    m_busy = false;
    if (!isRunning())
        startNext();
}

void WinGetManager::stopAfterCurrent()
{
    m_busy = true;
}

void WinGetManager::startNext()
{
    if (m_queue.isEmpty() || m_busy) {
        emit allFinished();
        return;
    }
    m_currentId = m_queue.takeFirst();
    emit packageStarted(m_currentId);
    m_process->start(QStringLiteral("winget"),
        { QStringLiteral("install"), QStringLiteral("--id"), m_currentId, QStringLiteral("--silent"),
            QStringLiteral("--accept-source-agreements"), QStringLiteral("--accept-package-agreements") },
        QIODevice::ReadWrite);
}

void WinGetManager::onProcessOutput()
{
    while (m_process->canReadLine())
        handleOutputLine(m_process->readLine());
}

void WinGetManager::handleOutputLine(const QByteArray& raw)
{
    static const QRegularExpression percent(QStringLiteral("(\\d+)%"));
    const QString line = QString::fromUtf8(raw).trimmed();
    emit outputLine(line);
    const QRegularExpressionMatch match = percent.match(line);
    if (!match.hasMatch())
        return;
    // A number too long for an int reads as 0, which is still reported.
    emit packageProgress(m_currentId, match.captured(1).toInt());
}

void WinGetManager::onProcessFinished(int code, QProcess::ExitStatus status)
{
    Q_UNUSED(status); // a crash shows in the code as well
    if (code == 0)
        emit packageFinished(m_currentId, true, QStringLiteral("success"));
    else
        emit packageFinished(m_currentId, false, QStringLiteral("exit code %1").arg(code));
    startNext();
}
