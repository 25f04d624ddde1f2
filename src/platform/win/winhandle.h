#pragma once

#include <windows.h>

#include <utility>

namespace platform {

// Whether a Win32 error means "it is not there". Deleting what is already gone is not a failure,
// so every delete asks this instead of comparing codes.
inline bool isNotFound(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

// A move-only owner of one Win32 handle, shaped like WIL's unique_any: get() lends it, reset()
// closes it (and takes a new one), release() gives it up without closing, put() hands the
// address of the empty slot to an API that returns a handle through a pointer.
// Closing never changes GetLastError(), so a failing call can be followed by cleanup before
// its error is read.
template <typename Traits> class UniqueAny {
public:
    using pointer = typename Traits::type;

    UniqueAny() = default;
    explicit UniqueAny(pointer value)
        : m_value(value)
    {
    }
    ~UniqueAny() { reset(); }

    UniqueAny(const UniqueAny&) = delete;
    UniqueAny& operator=(const UniqueAny&) = delete;
    UniqueAny(UniqueAny&& other) noexcept
        : m_value(other.release())
    {
    }
    UniqueAny& operator=(UniqueAny&& other) noexcept
    {
        if (this != &other)
            reset(other.release());
        return *this;
    }

    pointer get() const { return m_value; }
    bool isValid() const { return m_value != Traits::invalid(); }
    explicit operator bool() const { return isValid(); }

    void reset(pointer value = Traits::invalid())
    {
        if (isValid()) {
            const DWORD lastError = ::GetLastError();
            Traits::close(m_value);
            ::SetLastError(lastError);
        }
        m_value = value;
    }

    pointer release() { return std::exchange(m_value, Traits::invalid()); }

    pointer* put()
    {
        reset();
        return &m_value;
    }

private:
    pointer m_value = Traits::invalid();
};

struct HkeyTraits {
    using type = HKEY;
    static type invalid() { return nullptr; }
    static void close(type key) { ::RegCloseKey(key); }
};

// Handles whose failure value is null: processes, threads, events, mutexes.
struct HandleTraits {
    using type = HANDLE;
    static type invalid() { return nullptr; }
    static void close(type handle) { ::CloseHandle(handle); }
};

// Handles whose failure value is INVALID_HANDLE_VALUE: CreateFileW, CreateToolhelp32Snapshot.
struct HfileTraits {
    using type = HANDLE;
    static type invalid() { return INVALID_HANDLE_VALUE; }
    static void close(type handle) { ::CloseHandle(handle); }
};

using UniqueHkey = UniqueAny<HkeyTraits>;
using UniqueHandle = UniqueAny<HandleTraits>;
using UniqueHfile = UniqueAny<HfileTraits>;

} // namespace platform
