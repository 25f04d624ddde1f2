#pragma once

#include "winapps/processrunner.h"

#include <QMap>
#include <QStringList>

#include <mutex>

inline ProcessOutcome outcome(int code, const QByteArray& out = {}, const QByteArray& err = {})
{
    return { code, out, err };
}

// Plays back recorded outcomes by step and records every run, from whichever thread runs it.
class RecordedRunner final : public ProcessRunner {
public:
    struct Call {
        QString program;
        QStringList arguments;
        int timeoutMs;
    };
    QMap<QString, ProcessOutcome> outcomes; // by step; a missing step exits 0 with no output

    static QString stepOf(const QString& program, const QStringList& arguments)
    {
        if (program == QLatin1String("winget"))
            return QStringLiteral("winget");
        const QString command = arguments.value(3);
        if (command.startsWith(QLatin1String("Remove-AppxPackage -AllUsers")))
            return QStringLiteral("allUsers");
        if (command.startsWith(QLatin1String("Remove-AppxPackage")))
            return QStringLiteral("user");
        if (command.startsWith(QLatin1String("Get-AppxProvisionedPackage")))
            return QStringLiteral("provisioned");
        return QStringLiteral("verify");
    }

    ProcessOutcome run(const QString& program, const QStringList& arguments, int timeoutMs) override
    {
        const std::lock_guard lock(m_mutex);
        m_calls.append({ program, arguments, timeoutMs });
        return outcomes.value(stepOf(program, arguments), outcome(0));
    }

    QList<Call> calls() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls;
    }
    QString steps() const
    {
        QStringList out;
        for (const Call& c : calls())
            out << stepOf(c.program, c.arguments);
        return out.join(' ');
    }

private:
    mutable std::mutex m_mutex;
    QList<Call> m_calls;
};
