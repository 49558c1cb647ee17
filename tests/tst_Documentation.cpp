#include "KTTestSupport.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

/** By command, an empty one for the program itself: its options, "-o" as well as "--output". */
using Options = QMap<QString, QSet<QString>>;

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

QString contentOf(const QString &name)
{
    QFile file(QStringLiteral(KT_SOURCE_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList captures(const QString &text, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

QSet<QString> optionsIn(const QString &text)
{
    const QStringList options = captures(text, u"(?<![\\w-])(--?[a-z][a-z-]*)"_s);
    return QSet<QString>(options.begin(), options.end());
}

/** The first column of what --help says of options. */
QSet<QString> helpedOptions(const QString &help)
{
    return optionsIn(captures(help, u"^  (-.*?)(?:  |$)"_s).join(u' '));
}

Options helped()
{
    const QString help = outputOf(QStringLiteral(KT_PROGRAM), {u"--help"_s});
    Options options {
        {QString(), helpedOptions(help)}
    };
    const QString commands = help.section(u"Commands"_s, 1).section(u"\n\n"_s, 0, 0);
    for (const QString &command : captures(commands, u"^  ([a-z]+)"_s))
        options.insert(command, helpedOptions(outputOf(QStringLiteral(KT_PROGRAM), {command, u"--help"_s})));
    return options;
}

/** The options of a command stand in its subsection, each after ".TP"; --help stands with the program's. */
Options inManual()
{
    const QString manual = contentOf(u"docs/ktcatalogue.1"_s).replace(u"\\-"_s, u"-"_s);
    const auto tagged
        = [](const QString &section) { return optionsIn(captures(section, u"^\\.TP\n(.*)$"_s).join(u' ')); };
    Options options {
        {QString(), tagged(manual.section(u".SH OPTIONS"_s, 1).section(u"\n.SH "_s, 0, 0))}
    };
    const QStringList sections
        = manual.section(u".SH COMMANDS"_s, 1).section(u"\n.SH "_s, 0, 0).split(u"\n.SS "_s).mid(1);
    for (const QString &section : sections)
        options.insert(section.section(u'\n', 0, 0), tagged(section) + QSet<QString> {u"-h"_s, u"--help"_s});
    return options;
}

/** What bash offers after the words, the last of which is not complete yet. */
QStringList completed(const QString &words)
{
    const QString script = u"source '%1/tools/ktcatalogue/ktcatalogue.bash'\n"
                           "COMP_WORDS=('%2' %3)\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                           "_ktcatalogue\nprintf '%s\\n' \"${COMPREPLY[@]}\""_s;
    return outputOf(u"bash"_s,
                    {u"--norc"_s, u"-c"_s,
                     script.arg(QStringLiteral(KT_SOURCE_DIR), QStringLiteral(KT_PROGRAM), words)})
        .split(u'\n', Qt::SkipEmptyParts);
}

Options inCompletion()
{
    Options options {
        {QString(), optionsIn(completed(u"-"_s).join(u' '))}
    };
    for (const QString &word : completed(u"''"_s)) {
        if (!word.startsWith(u'-'))
            options.insert(word, optionsIn(completed(word + u" -"_s).join(u' ')));
    }
    return options;
}

} // namespace

class tst_Documentation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsRulesInTheManual()
    {
        const QString manual = contentOf(u"docs/ktcatalogue.1"_s).replace(u"\\-"_s, u"-"_s);
        QStringList rules;
        for (const QString &entry :
             manual.section(u".SH RULES"_s, 1).section(u"\n.SH "_s, 0, 0).split(u".TP\n.B "_s).mid(1))
            rules.append(entry.simplified().remove(QLatin1Char('(')).replace(u") "_s, u" "_s));
        QStringList listed = outputOf(QStringLiteral(KT_PROGRAM), {u"check"_s, u"--list-rules"_s})
                                 .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (QString &line : listed)
            line = line.simplified();
        QCOMPARE(rules, listed);
    }

    void agreesOnOptions()
    {
        const Options options = helped();
        QVERIFY(options.size() > 1 && options.value(u"preview"_s).contains(u"-o"_s));
        QCOMPARE(inManual(), options);
        QCOMPARE(inCompletion(), options);
    }

    void completesWords()
    {
        QCOMPARE(completed(u"keywords --format = j"_s), QStringList(u"json"_s));
        QCOMPARE(completed(u"keywords KTOr"_s), QStringList(u"KTOrientation"_s));
    }

    void listsKeywords()
    {
        const QString page = outputOf(QStringLiteral(KT_PROGRAM), {u"keywords"_s, u"--format=markdown"_s});
        QVERIFY(!page.isEmpty());
        QVERIFY2(contentOf(u"docs/keywords.md"_s) == page,
                 "run: ktcatalogue keywords --format markdown > docs/keywords.md");
    }
};

QTEST_GUILESS_MAIN(tst_Documentation)
#include "tst_Documentation.moc"
