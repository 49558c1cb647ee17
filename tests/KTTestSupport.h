#pragma once

#include <QDataStream>
#include <QDebug>
#include <QDomDocument>
#include <QDomElement>
#include <QFile>
#include <QString>
#include <QTranslator>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <thread>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

/** A text as a QString, short enough for data rows. */
inline QString operator""_s(const char16_t *text, std::size_t size)
{
    return QString::fromUtf16(text, static_cast<int>(size));
}

namespace KTTest {

/** A text that may also be given as a plain UTF-8 literal. */
class Text : public QString
{
public:
    Text(const char *utf8)
        : QString(QString::fromUtf8(utf8))
    {
    }
    Text(const QString &text)
        : QString(text)
    {
    }
};

/** The text in UTF-8, in UTF-16LE or UTF-16BE, or else in Latin 1. */
inline QByteArray encoded(const QString &text, const QByteArray &encoding)
{
    if (encoding == "UTF-8")
        return text.toUtf8();
    if (!encoding.startsWith("UTF-16"))
        return text.toLatin1();
    const bool isLittle = encoding == "UTF-16LE";
    QByteArray bytes;
    for (const QChar unit : text) {
        bytes.append(static_cast<char>(isLittle ? unit.cell() : unit.row()));
        bytes.append(static_cast<char>(isLittle ? unit.row() : unit.cell()));
    }
    return bytes;
}

template <typename T>
using Cell = std::conditional_t<std::is_same_v<T, QString>, Text, T>;

/** The rows of a data function. A row without a name is named after its first column, a text. */
template <typename... COLUMNS>
class Rows
{
    static constexpr const char *NAMES[] = {"0", "1", "2", "3", "4", "5", "6", "7"};

public:
    Rows()
    {
        int column = 0;
        (QTest::addColumn<COLUMNS>(NAMES[column++]), ...);
    }
    void operator()(const char *name, const Cell<COLUMNS> &...values) const
    {
        (QTest::newRow(name) << ... << static_cast<const COLUMNS &>(values));
    }
    void operator()(const Cell<COLUMNS> &...values) const
    {
        const QString &name = std::get<0>(std::tie(values...));
        operator()(name.isEmpty() ? "empty" : name.toUtf8().constData(), values...);
    }
    static std::tuple<COLUMNS...> current()
    {
        const char *const *name = NAMES;
        const auto data = [&name](int type) { return QTest::qData(*name++, type); };
        return {*static_cast<COLUMNS *>(data(qMetaTypeId<COLUMNS>()))...};
    }
};

/** The values of the current row, as QFETCH() gives them one by one. */
template <typename... COLUMNS>
std::tuple<COLUMNS...> row()
{
    return Rows<COLUMNS...>::current();
}

/** Translates every text into its context and itself. */
class EchoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(context) + u'/' + QString::fromUtf8(text);
    }
};

/** What an object looks like in the log. */
template <typename T>
QString logged(const T &object)
{
    QString text;
    QDebug(&text) << object;
    return text;
}

/** The values as one text, with bars between them; a bool is + or -. */
template <typename... VALUES>
QString text(const VALUES &...values)
{
    QStringList texts;
    const auto append = [&texts](const auto &value) {
        using Value = std::decay_t<decltype(value)>;
        QString text;
        if constexpr (std::is_same_v<Value, bool>)
            text = QLatin1Char(value ? '+' : '-');
        else if constexpr (std::is_floating_point_v<Value>)
            text = QString::number(value, 'g', 12);
        else if constexpr (std::is_same_v<Value, QList<int>> || std::is_same_v<Value, QVector<int>>)
            QtPrivate::printSequentialContainer(QDebug(&text).nospace(), "", value);
        else
            QDebug(&text).noquote().nospace() << value;
        texts.append(text);
    };
    (append(values), ...);
    return texts.join(QLatin1Char('|'));
}

/** A text as an INPUT; whole numbers may be hexadecimal. */
template <typename INPUT>
INPUT fromText(const QString &text)
{
    if constexpr (std::is_floating_point_v<INPUT>)
        return text.toDouble();
    else if constexpr (std::is_arithmetic_v<INPUT>)
        return static_cast<INPUT>(text.toLongLong(nullptr, 0));
    else
        return text;
}

/** Checks rows "input -> answer", where the answer is the text() of what the function makes of the input. */
template <typename INPUT = QString, typename FUNCTION>
void check(FUNCTION answer, std::initializer_list<Text> rows, const char *file = __builtin_FILE(),
           int line = __builtin_LINE())
{
    const QString arrow = u" -> "_s;
    for (const QString &row : rows) {
        const QString input = row.left(row.indexOf(arrow));
        const QString actual = input + arrow + text(answer(fromText<INPUT>(input)));
        QTest::qCompare(actual, row, "what comes out", "the row", file, line);
    }
}

/**
 * Checks a table in tests/data, whose first line names its columns: the columns behind the first one are the
 * text() of what the function makes of that.
 */
template <typename INPUT = QString, typename FUNCTION>
void checkTable(const QString &name, FUNCTION answer)
{
    QFile file(QStringLiteral(KT_TEST_DATA "/") + name);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
    const QStringList rows = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts).mid(1);
    QVERIFY(!rows.isEmpty());
    for (const QString &row : rows) {
        const QString input = row.section(u'\t', 0, 0);
        const QString answers = text(answer(fromText<INPUT>(input))).replace(u'|', u'\t');
        QCOMPARE(QString(input + u'\t' + answers).replace(u'\n', u"\\n"_s), row);
    }
}

/** What an object writes into a data stream, in hexadecimal digits. */
template <typename T>
QByteArray streamed(const T &object)
{
    QByteArray written;
    QDataStream stream(&written, QIODevice::WriteOnly);
    object << stream;
    return written.toHex();
}

/** True when all comparison operators say that the first is less. */
template <typename T>
bool isLess(const T &less, const T &more)
{
    const bool isEqual = less == less && !(less != less) && less <= less && less >= less && !(less < less);
    return isEqual && less < more && !(more < less) && less <= more && !(more <= less) && more > less
        && !(less > more) && more >= less && !(less >= more) && less != more && !(less == more);
}

/** Calls the function with the numbers from 0 on, all at once in their own threads. */
inline void runInThreads(int count, const std::function<void(int)> &function)
{
    std::atomic<int> missing {count};
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&, i] {
            for (--missing; missing > 0;)
                std::this_thread::yield();
            function(i);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

/** Holds a thread up where others should come along if no lock keeps them out. */
inline void linger()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

/** The document element of an XML text. */
inline QDomElement element(const QString &xml)
{
    QDomDocument document;
    document.setContent(xml);
    return document.documentElement();
}

/** An element as XML text without line breaks. */
inline QString xml(const QDomElement &element)
{
    QDomDocument document;
    document.appendChild(document.importNode(element, true));
    return document.toString(-1);
}

} // namespace KTTest
