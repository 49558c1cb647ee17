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

QString KTFuzz::Bytes::takeLine()
{
    const QByteArray line(begin, static_cast<int>(std::find(begin, end, '\n') - begin));
    begin += std::min<std::ptrdiff_t>(line.size() + 1, end - begin);
    // Byte by byte, because the text may stand at an odd address.
    QString text((line.size() - 1) / 2, Qt::Uninitialized);
    std::memcpy(text.data(), line.constData() + 1, sizeof(QChar) * static_cast<std::size_t>(text.size()));
    return line.startsWith('\xff') ? text : QString::fromUtf8(line);
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
