// Compiled into every MinGW executable (not into the library: an archive member would lose to
// libstdc++'s own definition).
//
// libstdc++ for MinGW runs the destructors of thread_local objects through a winpthreads key and
// deletes that key from a static destructor at exit. Qt registers such objects (the regular
// expression JIT stack, the animation timer), and once a thread that had one has ended, deleting
// the key at exit can wait forever on winpthreads' key lock: the program drew its last window and
// never ended. Here the destructors run from a fibre-local slot's callback instead, which needs
// no lock and is never deleted.

#include <windows.h>

#include <cstdlib>
#include <new>

namespace {

struct Destructor {
    void (*run)(void*);
    void* object;
    Destructor* next;
};

bool exiting = false;

void NTAPI runDestructors(void* head)
{
    // At process exit the static objects these may still use are gone; the system takes the rest.
    if (exiting)
        return;
    for (auto* d = static_cast<Destructor*>(head); d;) {
        d->run(d->object);
        Destructor* next = d->next;
        delete d;
        d = next;
    }
}

DWORD slot()
{
    static const DWORD index = [] {
        std::atexit([] { exiting = true; });
        return ::FlsAlloc(&runDestructors);
    }();
    return index;
}

} // namespace

extern "C" int __cxa_thread_atexit(void (*run)(void*), void* object, void* /*dso*/)
{
    const DWORD index = slot();
    if (index == FLS_OUT_OF_INDEXES)
        return -1;
    // Latest first: thread_local objects are destroyed in the reverse order of their construction.
    auto* d = new (std::nothrow) Destructor { run, object, static_cast<Destructor*>(::FlsGetValue(index)) };
    if (!d || !::FlsSetValue(index, d)) {
        delete d;
        return -1;
    }
    return 0;
}
