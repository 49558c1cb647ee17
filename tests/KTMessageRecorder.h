#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/**
 * Records the process's log messages, with their contexts, instead of printing them, as long as it lives.
 *
 * One at a time, in a test of one thread.
 */
class KTMessageRecorder
{
public:
    struct Message
    {
        QtMsgType type;
        QString text;
        QByteArray category;
        QByteArray file;
        QByteArray function;
        int line;
    };

    KTMessageRecorder()
        : myPreviousHandler(qInstallMessageHandler(&KTMessageRecorder::record))
    {
        ourMessages.clear();
    }
    ~KTMessageRecorder() { qInstallMessageHandler(myPreviousHandler); }
    Q_DISABLE_COPY(KTMessageRecorder)

    const QVector<Message> &messages() const { return ourMessages; }

private:
    static void record(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        ourMessages.append({type, text, context.category, context.file, context.function, context.line});
    }

    static inline QVector<Message> ourMessages;
    QtMessageHandler myPreviousHandler;
};
