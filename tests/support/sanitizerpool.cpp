// Linked into every Qt test program. Debian's Qt is not built with ThreadSanitizer, so a job that
// the pool hands to one of its idle threads crosses threads through a lock TSan cannot see, and
// everything the job was built from looks racy. Under TSan the pool therefore never keeps an idle
// thread and never queues: each job starts a thread of its own, and the thread start is a
// hand-off TSan sees.

#if defined(__SANITIZE_THREAD__)

#include <QCoreApplication>
#include <QThreadPool>

namespace {

void startEveryJobOnAThreadOfItsOwn()
{
    QThreadPool* pool = QThreadPool::globalInstance();
    pool->setExpiryTimeout(0);
    pool->setMaxThreadCount(256);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startEveryJobOnAThreadOfItsOwn)

#endif
