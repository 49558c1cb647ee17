#pragma once

#include <QtGlobal>

/** While it lives, what the library logs about the texts that it reads is left to check. */
class KTLogSilence
{
public:
    KTLogSilence()
        : myHandler(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
    {
    }
    ~KTLogSilence() { qInstallMessageHandler(myHandler); }
    KTLogSilence(const KTLogSilence &) = delete;
    KTLogSilence &operator=(const KTLogSilence &) = delete;

private:
    QtMessageHandler myHandler;
};
