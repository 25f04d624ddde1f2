#pragma once

// What every fuzz target shares. Built with NORVALE_LIBFUZZER a target is a libFuzzer entry point;
// otherwise it registers itself with the replay driver that feeds it the seed corpus in the
// ordinary test run.

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz {

using Target = int (*)(const std::uint8_t* data, std::size_t size);
bool registerTarget(const char* name, Target target);

[[noreturn]] inline void fail(const char* what, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: broken: %s\n", file, line, what);
    std::abort();
}

inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

// The input cut at `separator` into exactly `count` fields, the last ones empty when it has fewer.
inline QList<QByteArray> fields(const std::uint8_t* data, std::size_t size, const QByteArray& separator, int count)
{
    const QByteArray all = bytes(data, size);
    QList<QByteArray> out;
    qsizetype from = 0;
    while (out.size() + 1 < count) {
        const qsizetype at = all.indexOf(separator, from);
        if (at < 0)
            break;
        out.append(all.mid(from, at - from));
        from = at + separator.size();
    }
    out.append(all.mid(from));
    while (out.size() < count)
        out.append(QByteArray());
    return out;
}

inline std::wstring wide(const QByteArray& utf8)
{
    return QString::fromUtf8(utf8).toStdWString();
}

void init();

} // namespace fuzz

#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            fuzz::fail(#condition, __FILE__, __LINE__);                                                                \
    } while (false)

#ifdef NORVALE_LIBFUZZER

#include <QCoreApplication>

namespace fuzz {
// The log lines of the code under test would cost more than the code itself.
inline void init()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = { name, nullptr };
    static QCoreApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}
} // namespace fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::init();
    return 0;
}

#define NORVALE_FUZZ_TARGET(name) extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)

#else

#define NORVALE_FUZZ_TARGET(name)                                                                                      \
    static int fuzz_##name(const std::uint8_t*, std::size_t);                                                          \
    [[maybe_unused]] static const bool registered_##name = fuzz::registerTarget(#name, fuzz_##name);                   \
    static int fuzz_##name(const std::uint8_t* data, std::size_t size)

#endif
