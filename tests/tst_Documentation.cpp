#include <KTCatalogueFormat.h>

#include "KTTestSupport.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

namespace {

const QString PROGRAM = QStringLiteral(KT_PROGRAM);

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.exitCode() <= 1 ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

QString contentOf(const QString &name)
{
    QFile file(QStringLiteral(KT_SOURCE_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString manual()
{
    return contentOf(u"docs/ktcatalogue.1"_s).replace(u"\\-"_s, u"-"_s);
}

/** What the groups of the pattern capture, with blanks between them, for each match. */
QStringList captures(const QString &text, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().capturedTexts().mid(1).join(u' '));
    return found;
}

/** The attribute as a row of the format's page. */
QString documentedRow(const KTAttributeRow &row, const QString &element)
{
    QString meaning = QString::fromUtf8(row.meaning);
    if (row.type == KTAttributeType::Keywords) {
        meaning.chop(1);
        meaning += u" (`%1`)."_s.arg(KTClassification::of(row.classification).className());
    }
    const QString text = row.defaultText();
    const bool isCode = row.type == KTAttributeType::Keywords
        ? text != u"nothing"
        : row.type == KTAttributeType::Text || row.type == KTAttributeType::Unit || text == u"false";
    return u"| `%1`%2 | %3 | %4 |"_s.arg(
        row.name, element.isEmpty() ? QString() : u" (of `%1`)"_s.arg(element), meaning,
        text.isEmpty() ? u"empty"_s
            : isCode   ? u'`' + text + u'`'
                       : text);
}

/** "articles[].id number" and the like for each value in the document. */
void collectMembers(const QJsonValue &value, const QString &path, QSet<QString> *members)
{
    if (value.isArray()) {
        for (const QJsonValue &entry : value.toArray())
            collectMembers(entry, path + u"[]"_s, members);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            collectMembers(member.value(), path + u'.' + member.key(), members);
    } else {
        members->insert(path.mid(1)
                        + (value.isBool()         ? u" boolean"_s
                               : value.isDouble() ? u" number"_s
                                                  : u" text"_s));
    }
}

/** The options, "-o" as well as "--output", in what the pattern captures. */
QSet<QString> options(const QString &text, const QString &pattern)
{
    const QStringList found = captures(captures(text, pattern).join(u' '), u"(?<![\\w-])(--?[a-z][a-z-]*)"_s);
    return QSet<QString>(found.begin(), found.end());
}

/** What bash offers after the words, the last of which is not complete yet. */
QString completed(const QString &words)
{
    const QString script = u"source '%1/tools/ktcatalogue/ktcatalogue.bash'\n"
                           "COMP_WORDS=('%2' %3)\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                           "_ktcatalogue\nprintf '%s\\n' \"${COMPREPLY[@]}\""_s;
    return outputOf(u"bash"_s,
                    {u"--norc"_s, u"-c"_s, script.arg(QStringLiteral(KT_SOURCE_DIR), PROGRAM, words)});
}

} // namespace

class tst_Documentation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsRules_data()
    {
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("page");
        QTest::newRow("check") << u"RULES"_s << u"docs/catalogue-format.md"_s;
        QTest::newRow("diff") << u"DIFFERENCES"_s << u"docs/diff.md"_s;
    }
    void listsRules()
    {
        QFETCH(QString, section);
        QFETCH(QString, page);
        const QString command = QString::fromLatin1(QTest::currentDataTag());
        const QStringList rules
            = captures(outputOf(PROGRAM, {command, u"--list-rules"_s}), u"^(\\S+) +(\\S+) +(.+)$"_s);
        QVERIFY(rules.size() >= 30);
        const QString listed = manual().section(u"\n.SH %1\n"_s.arg(section), 1).section(u"\n.SH "_s, 0, 0);
        QCOMPARE(captures(listed, u"^\\.B ([a-z-]+)\n\\((\\w+)\\) (.+)$"_s), rules);
        // The severity stands last, and the summary begins with a capital letter.
        const QString text = contentOf(page).replace(u'`', u'\'');
        const QString row = u"^\\| '([a-z]+-[a-z-]+)' (?=.*\\| (\\w+) \\|$)\\| (.+) \\| \\w+ \\|$"_s;
        QCOMPARE(captures(text, row).join(u'\n').toLower(), rules.join(u'\n').toLower());
    }

    void listsAttributes()
    {
        QStringList documented;
        QStringList known;
        for (const QString &section : contentOf(u"docs/catalogue-format.md"_s).split(u"\n## "_s)) {
            // A table for two elements names the first one; the other one is the last in the heading.
            const QStringList elements = captures(section.section(u'\n', 0, 0), u"`(\\w+)`"_s);
            for (const KTAttributeRow &row : KTCatalogueFormat::attributes()) {
                const QString element = KTCatalogueFormat::elementName(row.element);
                if (elements.contains(element))
                    known.append(documentedRow(row, element == elements.constLast() ? QString() : element));
            }
            if (!elements.isEmpty())
                documented += captures(section, u"^(\\| `\\w+`(?: \\(of `\\w+`\\))? \\|.*)$"_s);
        }
        QCOMPARE(documented.join(u'\n'), known.join(u'\n'));
        QCOMPARE(known.size(), int(KTCatalogueFormat::ATTRIBUTE_COUNT));
    }

    void agreesOnOptions()
    {
        // The last one, without a name, is the program itself.
        const QStringList commands = captures(outputOf(PROGRAM, {u"--help"_s}), u"^  ([a-z]+)  "_s)
            << QString();
        QVERIFY(commands.contains(u"preview"_s));
        QCOMPARE(captures(completed(u"''"_s), u"^([a-z]+)$"_s) << QString(), commands);
        QCOMPARE(captures(manual(), u"^\\.SS (.+)$"_s) << QString(), commands);
        for (const QString &command : commands) {
            const QString help
                = outputOf(PROGRAM, QString(command + u" --help"_s).split(u' ', Qt::SkipEmptyParts));
            const QSet<QString> expected = options(help, u"^  (-.*?)(?:  |$)"_s);
            QCOMPARE(options(completed(command + u" -"_s), u"(.+)"_s), expected);
            // In the manual, --help stands only with the program's.
            const QString title = command.isEmpty() ? u"\n.SH OPTIONS\n"_s : u"\n.SS %1\n"_s.arg(command);
            const QSet<QString> common
                = command.isEmpty() ? QSet<QString>() : QSet<QString> {u"-h"_s, u"--help"_s};
            const QString section = manual().section(title, 1).section(u"\n.S"_s, 0, 0);
            QCOMPARE(options(section, u"^\\.TP\n(.*)$"_s) + common, expected);
        }
    }

    void describesJson_data()
    {
        QTest::addColumn<QStringList>("commands");
        const QString sample = u" %1/examples/catalogue.xml"_s.arg(QStringLiteral(KT_SOURCE_DIR));
        const QString other = u" %1/tests/data/article/catalogue.xml"_s.arg(QStringLiteral(KT_SOURCE_DIR));
        QTest::newRow("show") << QStringList {u"show"_s + sample, u"show"_s + other};
        QTest::newRow("order") << QStringList {u"order --article 7301 --pages 30"_s + sample};
        QTest::newRow("check") << QStringList {u"check --fail-on never"_s + other};
        const QString next = u" %1/examples/catalogue-next.xml"_s.arg(QStringLiteral(KT_SOURCE_DIR));
        const QString orders = u" %1/examples/orders.tsv"_s.arg(QStringLiteral(KT_SOURCE_DIR));
        const QString broken = u" %1/tests/data/orders/session.txt"_s.arg(QStringLiteral(KT_SOURCE_DIR));
        QTest::newRow("diff") << QStringList {u"diff --fail-on never"_s + sample + next + u" --orders"_s
                                              + orders};
        QTest::newRow("orders") << QStringList {u"orders"_s + next + orders, u"orders"_s + next + broken};
        QTest::newRow("keywords") << QStringList {u"keywords"_s};
    }
    void describesJson()
    {
        QFETCH(QStringList, commands);
        QSet<QString> members;
        for (const QString &command : commands) {
            const QString output = outputOf(PROGRAM, QString(command + u" --json"_s).split(u' '));
            collectMembers(QJsonDocument::fromJson(output.toUtf8()).object(), QString(), &members);
        }
        const QString section
            = contentOf(u"docs/json.md"_s)
                  .section(u"\n## `%1`\n"_s.arg(QString::fromLatin1(QTest::currentDataTag())), 1)
                  .section(u"\n## "_s, 0, 0);
        for (const QString &documented : captures(section, u"^\\| `(\\S+)` \\| (\\w+) \\|"_s)) {
            // A name in capitals stands for any.
            const QString pattern = QRegularExpression::escape(documented)
                                        .replace(QRegularExpression(u"[A-Z]{2,}"_s), u"[^.]+"_s);
            const QRegularExpression row(QRegularExpression::anchoredPattern(pattern));
            const QSet<QString> before = members;
            for (const QString &member : before) {
                if (row.match(member).hasMatch())
                    members.remove(member);
            }
            QVERIFY2(members.size() < before.size(), qPrintable(documented));
        }
        QCOMPARE(members, QSet<QString>());
    }

    void showsRecipes_data()
    {
        QTest::addColumn<QString>("section");
        QStringList recipes = QDir(QStringLiteral(KT_SOURCE_DIR "/docs/recipes")).entryList({u"*.cpp"_s});
        for (const QString &section : contentOf(u"docs/recipes.md"_s).split(u"\n## "_s).mid(1)) {
            const QString recipe = captures(section, u"\\(recipes/(\\w+\\.cpp)\\)"_s).value(0);
            QVERIFY2(recipes.removeOne(recipe), qPrintable(section));
            QTest::newRow(qPrintable(recipe.chopped(4))) << section;
        }
        QCOMPARE(recipes, QStringList());
    }
    void showsRecipes()
    {
        QFETCH(QString, section);
        const QString recipe = QString::fromLatin1(QTest::currentDataTag());
        QString snippets;
        for (QString snippet : captures(contentOf(u"docs/recipes/%1.cpp"_s.arg(recipe)),
                                        u"^ *//! \\[\\w+\\]\n((?:.*\n)*?) *//! \\["_s)) {
            // Those inside main() are indented once.
            if (snippet.startsWith(u"    "_s))
                snippet.replace(QRegularExpression(u"^    "_s, QRegularExpression::MultilineOption),
                                QString());
            snippets += snippet;
        }
        QVERIFY(!snippets.isEmpty());
        QCOMPARE(captures(section, u"```cpp\n((?:.*\n)*?)```"_s).join(QString()), snippets);
        QCOMPARE(captures(section, u"```text\n((?:.*\n)*?)```"_s).value(0),
                 outputOf(QStringLiteral(KT_RECIPES "/") + recipe, {}));
    }

    void completesWords()
    {
        QCOMPARE(completed(u"keywords --format = j"_s), u"json\n"_s);
        QCOMPARE(completed(u"keywords KTOr"_s), u"KTOrientation\n"_s);
    }

    void listsKeywords()
    {
        const QString page = outputOf(PROGRAM, {u"keywords"_s, u"--format=markdown"_s});
        QVERIFY(!page.isEmpty());
        QVERIFY2(contentOf(u"docs/keywords.md"_s) == page,
                 "run: ktcatalogue keywords --format markdown > docs/keywords.md");
    }
};

QTEST_GUILESS_MAIN(tst_Documentation)
#include "tst_Documentation.moc"
