#include "KTTestSupport.h"

#include <QDirIterator>
#include <QProcess>

namespace {

const QString DATA = QStringLiteral(KT_TEST_DATA);
const QString SESSION = u"session.txt"_s;
const QString PROMPT = u"$ "_s;
const QString REMARK = u"// "_s;

/** What the lines of a command's standard error and an exit code that is not 0 begin with. */
const QString ERROR_MARK = u"2> "_s;
const QString EXIT_MARK = u"=> "_s;

QString contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** What bash says to the command, in the folder and with a $TMP of its own. */
QString answerTo(const QString &command, const QString &folder, const QString &scratch)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString programs = QFileInfo(QStringLiteral(KT_PROGRAM)).path();
    environment.insert(u"PATH"_s, programs + u':' + environment.value(u"PATH"_s));
    environment.insert(u"TMP"_s, scratch);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    QProcess bash;
    bash.setProcessEnvironment(environment);
    bash.setWorkingDirectory(folder);
    bash.start(u"bash"_s, {u"-c"_s, command});
    bash.waitForFinished();
    QString answer = QString::fromUtf8(bash.readAllStandardOutput());
    if (!answer.isEmpty() && !answer.endsWith(u'\n'))
        answer += u"[no line end]\n"_s;
    for (const QString &line :
         QString::fromUtf8(bash.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts))
        answer += ERROR_MARK + line + u'\n';
    const int code = bash.exitStatus() == QProcess::NormalExit ? bash.exitCode() : -1;
    return code == 0 ? answer : answer + EXIT_MARK + QString::number(code) + u'\n';
}

} // namespace

/**
 * Repeats the sessions in tests/data: each folder has a text of commands, behind "$ ", with what is said to
 * them. `./dev renew` writes what is said now, for review.
 */
class tst_Sessions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void repeats_data()
    {
        QTest::addColumn<QString>("folder");
        for (const QFileInfo &folder : QDir(DATA).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
            QTest::newRow(qPrintable(folder.fileName())) << folder.filePath();
    }
    void repeats()
    {
        QFETCH(QString, folder);
        const QTemporaryDir scratch;
        const QString expected = contentOf(folder + u'/' + SESSION);
        QString session;
        for (const QString &line : expected.split(u'\n')) {
            // Everything else is an answer, which is given anew.
            if (line.startsWith(PROMPT))
                session += line + u'\n' + answerTo(line.mid(PROMPT.size()), folder, scratch.path());
            else if (line.startsWith(REMARK))
                session += line + u'\n';
        }
        QVERIFY(session.contains(PROMPT));
        if (qEnvironmentVariableIsSet("KT_RENEW")) {
            QFile file(folder + u'/' + SESSION);
            const QByteArray bytes = session.toUtf8();
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
            return;
        }
        const QStringList lines = session.split(u'\n');
        const QStringList expectedLines = expected.split(u'\n');
        for (int i = 0; i < qMax(lines.size(), expectedLines.size()); ++i)
            QCOMPARE(u"line %1: "_s.arg(i + 1) + lines.value(i),
                     u"line %1: "_s.arg(i + 1) + expectedLines.value(i));
    }
};

QTEST_GUILESS_MAIN(tst_Sessions)
#include "tst_Sessions.moc"
