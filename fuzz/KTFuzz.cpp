#include "KTFuzz.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

// Read by the leak sanitizer: fontconfig never frees what it has asked of the system's fonts.
extern "C" const char *__lsan_default_suppressions();
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig.so";
}

void KTFuzz::fail(const char *file, int line, const char *promise)
{
    std::fprintf(stderr, "%s:%d: broken promise: %s\n", file, line, promise);
    std::abort();
}

void KTFuzz::setUp()
{
    // The same run each time, so that a finding can be repeated.
    qSetGlobalQHashSeed(0);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    // Reachable for ever: libFuzzer ends the process without a place to delete it.
    static QGuiApplication *const application = new QGuiApplication(count, arguments);
    use(application);
}
