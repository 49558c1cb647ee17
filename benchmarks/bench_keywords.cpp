#include "KTArticleClassRivals.h"
#include "KTBenchmark.h"

#include <KTArticleClass.h>

#include <QStringList>
#include <QVector>

namespace {

using Table = KTEnumToStringTable<KTArticleClassEnum>;

// What a text that is no keyword decodes to here; QMetaEnum shows it as well as the others can.
constexpr int UNKNOWN = -2;
// Above, QMetaEnum has stand-ins.
constexpr qint64 LAST_INT_VALUE = (1 << 29) - 1;

/** Everything that knows the article classes. */
struct Contenders
{
    Contenders();

    const Table &library = *KTArticleClass().enumToStringTable();
    KTLiteralArticleClasses literal;
    /** The same with the library's own keywords, which count no references. */
    KTLiteralArticleClasses staticLiteral;
    KTGperfArticleClasses gperf;
    KTMetaEnumArticleClasses meta;
    /** The keywords as fillTable() inserts them. */
    QList<QByteArray> keywords;
    QVector<KTArticleClassEnum> values;
};

/** A plain table makes its keywords at run time, as such tables do. */
void fill(KTLiteralArticleClasses *table, const Contenders &contenders)
{
    for (int i = 0; i < contenders.keywords.size(); ++i)
        table->insert(QString::fromLatin1(contenders.keywords.at(i)), contenders.values.at(i));
}

Contenders::Contenders()
{
    const auto &read = library.keywordToValue;
    for (auto entry = read.begin(); entry != read.end(); ++entry) {
        const QString written = library.encode(*entry);
        const QString &keyword = written.toLower() == entry.key() ? written : entry.key();
        keywords.append(keyword.toLatin1());
        values.append(*entry);
        staticLiteral.insert(keyword, *entry);
        KTBenchmark::require(staticLiteral.encode(*entry).data_ptr()->ref.isStatic(),
                             QStringLiteral("what counts no references"));
    }
    fill(&literal, *this);
}

/** One copy for all the loops, which run when everything is registered. */
const Contenders &contenders()
{
    static const Contenders myContenders;
    return myContenders;
}

/** Keeps inputs until the end of the program. */
template <typename INPUTS>
const INPUTS &kept(const INPUTS &inputs)
{
    return *new INPUTS(inputs);
}

/** " \tBoOk ": every second letter a capital, blanks around. */
QString decorated(const QString &keyword)
{
    QString result = QStringLiteral(" \t");
    for (int i = 0; i < keyword.size(); ++i)
        result += i % 2 == 0 ? keyword.at(i).toUpper() : keyword.at(i);
    return result + QLatin1Char(' ');
}

/** Adds one work for all contenders that can do it; `operation` is called with a contender and an input. */
template <typename INPUTS, typename OPERATION>
void addForAll(const std::string &work, const INPUTS &inputs, OPERATION operation)
{
    const Contenders &all = contenders();
    KTBenchmark::addOverInputs(work + "/library", inputs, [&all, operation](const auto &input) {
        return operation(all.library, input);
    });
    KTBenchmark::addOverInputs(work + "/literal", inputs, [&all, operation](const auto &input) {
        return operation(all.literal, input);
    });
    KTBenchmark::addOverInputs(work + "/gperf", inputs,
                               [&all, operation](const auto &input) { return operation(all.gperf, input); });
    KTBenchmark::addOverInputs(work + "/QMetaEnum", inputs,
                               [&all, operation](const auto &input) { return operation(all.meta, input); });
}

template <typename CONTENDER>
auto decoded(const CONTENDER &contender, const QString &text)
{
    return contender.decode(text, static_cast<decltype(contender.decodeCSV(text))>(UNKNOWN));
}

void requireSameDecoding(const QStringList &texts)
{
    const Contenders &all = contenders();
    for (const QString &text : texts) {
        const qint64 value = decoded(all.literal, text);
        KTBenchmark::require(decoded(all.library, text) == value && decoded(all.gperf, text) == value, text);
        KTBenchmark::require(value > LAST_INT_VALUE || decoded(all.meta, text) == value, text);
    }
}

void addDecoding(const std::string &work, const QStringList &texts)
{
    requireSameDecoding(texts);
    addForAll(work, kept(texts),
              [](const auto &contender, const QString &text) { return decoded(contender, text); });
}

void addListDecoding(const std::string &work, const QStringList &lists)
{
    const auto decode = [](const auto &contender, const QString &list) { return contender.decodeCSV(list); };
    const Contenders &all = contenders();
    for (const QString &list : lists) {
        const qint64 value = decode(all.literal, list);
        KTBenchmark::require(decode(all.library, list) == value && decode(all.gperf, list) == value, list);
        KTBenchmark::require(value > LAST_INT_VALUE || decode(all.meta, list) == value, list);
    }
    addForAll(work, kept(lists), decode);
}

/** gperf has no part in writing; QMetaEnum writes its own value for each, in lower case. */
template <typename VALUES, typename ENCODE>
void addEncoding(const std::string &work, const VALUES &values, const QVector<int> &metaValues, ENCODE encode)
{
    const Contenders &all = contenders();
    for (int i = 0; i < values.size(); ++i) {
        const QString text = encode(all.literal, values.at(i));
        KTBenchmark::require(encode(all.library, values.at(i)) == text
                                 && encode(all.staticLiteral, values.at(i)) == text,
                             text);
        KTBenchmark::require(encode(all.meta, metaValues.at(i)).size() == text.size(), text);
    }
    KTBenchmark::addOverInputs(work + "/library", kept(values), [&all, encode](KTArticleClassEnum value) {
        return encode(all.library, value);
    });
    KTBenchmark::addOverInputs(work + "/literal", kept(values), [&all, encode](KTArticleClassEnum value) {
        return encode(all.literal, value);
    });
    KTBenchmark::addOverInputs(work + "/static", kept(values), [&all, encode](KTArticleClassEnum value) {
        return encode(all.staticLiteral, value);
    });
    KTBenchmark::addOverInputs(work + "/QMetaEnum", kept(metaValues),
                               [&all, encode](int value) { return encode(all.meta, value); });
}

} // namespace

void KTBenchmark::addKeywords()
{
    const Contenders &all = contenders();
    QStringList lower;
    QStringList mixed;
    for (const QString &keyword : all.library.keywordToValue.keys()) {
        lower.append(keyword);
        mixed.append(decorated(keyword));
    }
    QStringList lists;
    for (int i = 0; i + 5 <= lower.size(); i += 5)
        lists.append(lower.mid(i, 5).join(QStringLiteral(", ")));
    requireSameDecoding({QStringLiteral("boo\u212a"), QStringLiteral("\u00e4"), QStringLiteral("\u0130")});
    addDecoding("decode lower case", lower);
    addDecoding("decode mixed case and blanks", mixed);
    addDecoding(
        "decode unknown",
        QStringLiteral("hardcover softcover linen leather layflat spiral stapled premium_matte glossy "
                       "silk_paper portrait_large landscape acrylic aluminium forex mug phone_case")
            .split(QLatin1Char(' ')));
    addListDecoding("decode a list of five", lists);

    QVector<KTArticleClassEnum> values;
    QVector<int> metaValues;
    const auto &written = all.library.valueToKeyword;
    for (auto entry = written.begin(); entry != written.end(); ++entry) {
        values.append(entry.key());
        metaValues.append(all.meta.decode(*entry, UNKNOWN));
    }
    addEncoding("encode one", values, metaValues,
                [](const auto &contender, auto value) { return contender.encode(value); });

    // No union with a keyword of its own is part of these: QMetaEnum would write it.
    QVector<KTArticleClassEnum> unions;
    QVector<int> metaUnions;
    for (const char *const text :
         {"book, normal_calendar, card, canvas, playing_card, picture_box, slipcase, video_addOn",
          "agenda, deko, art_print, doublepage, puzzle, foto, paymentFee, design_addOn"}) {
        unions.append(all.library.decodeCSV(QString::fromLatin1(text)));
        metaUnions.append(static_cast<int>(unions.last()));
    }
    addEncoding("encode a union of eight", unions, metaUnions,
                [](const auto &contender, auto value) { return contender.encodeCSV(value); });

    add("fill 54 keywords/library", 1, [](std::size_t count) {
        for (const KTArticleClass articleClass(KTArticleClassNone); count > 0; --count) {
            Table table;
            articleClass.fillTable(&table);
            benchmark::DoNotOptimize(table);
        }
    });
    add("fill 54 keywords/literal", 1, [&all](std::size_t count) {
        for (; count > 0; --count) {
            KTLiteralArticleClasses table;
            fill(&table, all);
            benchmark::DoNotOptimize(table);
        }
    });
}
