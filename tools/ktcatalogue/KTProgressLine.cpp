#include "KTProgressLine.h"

#include "KTFileName.h"
#include "KTTerminalText.h"

#include <cstdio>
#include <unistd.h>

namespace {

constexpr qint64 FIRST_MILLISECONDS = 1000;
constexpr qint64 STEP_MILLISECONDS = 200;
const char ERASE_LINE[] = "\r\033[K";

} // namespace

KTProgressLine::KTProgressLine(bool isWanted)
    : myIsWanted(isWanted && isatty(STDERR_FILENO) != 0)
    , myNext(FIRST_MILLISECONDS)
{
    myTimer.start();
}

void KTProgressLine::show(const QString &text)
{
    const QByteArray line = ERASE_LINE + KTFileName::toBytes(KTTerminalText::visible(text));
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    myIsShown = true;
    myNext = myTimer.elapsed() + STEP_MILLISECONDS;
}

void KTProgressLine::clear()
{
    if (myIsShown)
        std::fputs(ERASE_LINE, stderr);
    myIsShown = false;
}
