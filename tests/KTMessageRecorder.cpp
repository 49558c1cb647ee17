#include "KTMessageRecorder.h"

namespace {
KTMessageRecorder *activeRecorder = nullptr;
}

KTMessageRecorder::KTMessageRecorder()
    : myPreviousHandler(qInstallMessageHandler(&KTMessageRecorder::record))
{
    activeRecorder = this;
}

KTMessageRecorder::~KTMessageRecorder()
{
    qInstallMessageHandler(myPreviousHandler);
    activeRecorder = nullptr;
}

void KTMessageRecorder::record(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    activeRecorder->myMessages.append(
        {type, text, context.category, context.file, context.function, context.line});
}
