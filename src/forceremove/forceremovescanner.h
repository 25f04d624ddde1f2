#pragma once

#include "forceremoveitem.h"
#include "uninstall/installedapp.h"

#include <QList>
#include <QObject>

#include <memory>

class ToolRunner;

// Finds everything one program left on the machine (after ending its processes) and deletes the
// targets chosen from that list. Both jobs run on the global thread pool and report by signals;
// cancel() or destruction stops them at the next check, and no signal follows a destruction.
class ForceRemoveScanner final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ForceRemoveScanner)
public:
    explicit ForceRemoveScanner(QObject* parent = nullptr);
    ~ForceRemoveScanner() override;

    void scan(const InstalledApp& app);
    // Positions in items(), acted on in the order given; positions out of range are skipped.
    void execute(const QList<int>& indices);
    void cancel();

    // The targets of the last scan; read after scanFinished.
    QList<ForceRemoveItem> items() const;
    // Whether the last scan() was given an install location that is a system or user folder, and
    // therefore searched as if the program had none.
    bool installLocationRefused() const { return m_locationRefused; }

    // Tests give recorded tool results; the default plays the tools of the current platform.
    void setToolRunner(std::shared_ptr<ToolRunner> runner);

    struct Shared;

signals:
    void scanProgress(int percent, const QString& text);
    void scanFinished(qint64 totalBytes);
    void executeProgress(int percent, const QString& text);
    void executeFinished(qint64 freedBytes);

private:
    InstalledApp m_app;
    std::shared_ptr<Shared> m_shared;
    std::shared_ptr<ToolRunner> m_runner;
    bool m_locationRefused = false;
};
