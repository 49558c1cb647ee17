#include "KTArticleReport.h"

#include "KTTerminalText.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTArticleDescription.h>
#include <KTArticleVariants.h>

#include <QMap>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <cmath>

using KTTerminalText::escaped;

namespace {

using Fact = KTArticleDescription::Fact;
using Row = KTArticleDescription::Row;
using Section = KTArticleDescription::Section;
using Shape = KTArticleDescription::Shape;

const QString INDENT = QStringLiteral("  ");
constexpr int LABEL_WIDTH = 16;
constexpr int COLOR_WIDTH = 7;
constexpr QChar SEPARATOR = u'.';
/** Beyond, a double does not know each whole number. */
constexpr double MAX_WHOLE = 9007199254740992.0;
const QString OPTIONS = QStringLiteral("options");

QString withoutBlanksAtEnd(QString line)
{
    KTSize length = line.size();
    while (length > 0 && line.at(length - 1) == QLatin1Char(' '))
        --length;
    line.truncate(length);
    return line;
}

QString line(const QString &label, const QString &text)
{
    return withoutBlanksAtEnd(INDENT + label.leftJustified(LABEL_WIDTH) + INDENT + text);
}

QString line(const Row &row)
{
    return line(row.label, escaped(row.value.isEmpty() ? row.remark : row.value + INDENT + row.remark));
}

/** The text of the fact; null where there is none. */
QString fact(const Row &row, const char *name)
{
    const auto found = std::find_if(row.facts.begin(), row.facts.end(),
                                    [name](const Fact &fact) { return fact.name == QLatin1String(name); });
    return found == row.facts.end() ? QString() : std::get<QString>(found->value);
}

template <typename Getter>
int widest(const QVector<Row> &rows, Getter getter)
{
    int width = 0;
    for (const Row &row : rows)
        width = std::max(width, KTArithmetic::sizeOf(escaped(getter(row))));
    return width;
}

/** The options by key, one line each: value, name, colour and flags in columns. */
QStringList optionLines(const QVector<Row> &rows)
{
    if (rows.isEmpty())
        return {line(KTToolText::tr("options"), KTToolText::tr("none"))};
    const int valueWidth = widest(rows, [](const Row &row) { return row.label; });
    const int nameWidth = widest(rows, [](const Row &row) { return row.value; });
    QStringList lines {line(KTToolText::tr("options"), QString())};
    QMap<QString, QVector<const Row *>> byKey;
    for (const Row &row : rows)
        byKey[fact(row, "key")].append(&row);
    for (auto entry = byKey.cbegin(); entry != byKey.cend(); ++entry) {
        lines.append(INDENT
                     + line(escaped(entry.key()), escaped(fact(*entry.value().constFirst(), "keyName"))));
        for (const Row *const row : entry.value()) {
            lines.append(
                withoutBlanksAtEnd(INDENT + INDENT + INDENT + escaped(row->label).leftJustified(valueWidth)
                                   + INDENT + escaped(row->value).leftJustified(nameWidth) + INDENT
                                   + fact(*row, "color").leftJustified(COLOR_WIDTH) + INDENT + row->remark));
        }
    }
    return lines;
}

using Encoding = rapidjson::UTF16<char16_t>;
using Buffer = rapidjson::GenericStringBuffer<Encoding>;
using Writer = rapidjson::PrettyWriter<Buffer, Encoding, Encoding>;

void write(Writer *writer, const QString &text)
{
    writer->String(reinterpret_cast<const char16_t *>(text.utf16()),
                   static_cast<rapidjson::SizeType>(text.size()));
}

void write(Writer *writer, int number)
{
    writer->Int(number);
}

void write(Writer *writer, bool isTrue)
{
    writer->Bool(isTrue);
}

/** JSON knows no infinity, and a whole number needs no decimals. */
void write(Writer *writer, double number)
{
    if (!std::isfinite(number))
        writer->Null();
    else if (number == std::trunc(number) && std::abs(number) < MAX_WHOLE)
        writer->Int64(static_cast<std::int64_t>(number));
    else
        writer->Double(number);
}

template <typename List>
void write(Writer *writer, const List &values)
{
    writer->StartArray();
    for (const auto &value : values)
        write(writer, value);
    writer->EndArray();
}

/** A member of an object, which is either a fact or all that a section holds. */
struct Member
{
    QString name;
    const Fact *fact;
    const Section *section;
};

void append(QVector<Member> *members, const QVector<Fact> &facts)
{
    for (const Fact &fact : facts)
        members->append({fact.name, &fact, nullptr});
}

void write(Writer *writer, const Section &section, const QVector<Section> &sections);

/** Writes the members in the order of their names, so that outputs can be compared. */
void writeObject(Writer *writer, QVector<Member> members, const QVector<Section> &sections)
{
    std::sort(members.begin(), members.end(),
              [](const Member &first, const Member &second) { return first.name < second.name; });
    writer->StartObject();
    for (const Member &member : qAsConst(members)) {
        write(writer, member.name);
        if (member.fact)
            std::visit([writer](const auto &value) { write(writer, value); }, member.fact->value);
        else
            write(writer, *member.section, sections);
    }
    writer->EndObject();
}

void writeObject(Writer *writer, const QVector<Fact> &facts)
{
    QVector<Member> members;
    members.reserve(facts.size());
    append(&members, facts);
    writeObject(writer, members, {});
}

/** The members that a section's rows, and the sections below it, give the object. */
QVector<Member> membersOf(const Section &section, const QVector<Section> &sections)
{
    QVector<Member> members;
    for (const Row &row : section.rows)
        append(&members, row.facts);
    const QString prefix = section.id + SEPARATOR;
    for (const Section &other : sections) {
        if (other.id.startsWith(prefix))
            members.append({other.id.mid(prefix.size()), nullptr, &other});
    }
    return members;
}

void write(Writer *writer, const Section &section, const QVector<Section> &sections)
{
    switch (section.shape) {
    case Shape::List:
        writer->StartArray();
        for (const Row &row : section.rows) {
            if (!row.id.isEmpty())
                writeObject(writer, row.facts);
        }
        writer->EndArray();
        break;
    case Shape::Map: {
        QMap<QString, const Row *> rows;
        for (const Row &row : section.rows) {
            if (!row.id.isEmpty())
                rows.insert(row.id.mid(section.id.size() + 1), &row);
        }
        writer->StartObject();
        for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
            write(writer, row.key());
            writeObject(writer, row.value()->facts);
        }
        writer->EndObject();
        break;
    }
    case Shape::Members:
    case Shape::Object:
        writeObject(writer, membersOf(section, sections), sections);
        break;
    }
}

} // namespace

QString KTArticleReport::toText(const KTArticle &article, const QList<int> &pageCounts)
{
    QStringList lines;
    for (const Section &section : KTArticleDescription(article, pageCounts).sections) {
        if (section.id == OPTIONS) {
            lines += optionLines(section.rows);
            continue;
        }
        for (const Row &row : section.rows) {
            // What has no words is for programs alone.
            if (row.label.isEmpty() && row.value.isEmpty())
                continue;
            lines.append(
                lines.isEmpty()
                    ? escaped(row.label + QLatin1Char(' ') + row.value + INDENT + row.remark).trimmed()
                    : line(row));
        }
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString KTArticleReport::toJSON(const KTArticle &article, const QList<int> &pageCounts)
{
    const KTArticleDescription description(article, pageCounts);
    QVector<Member> members;
    for (const Section &section : description.sections) {
        if (section.shape == Shape::Members)
            members += membersOf(section, {});
        else if (!section.id.contains(SEPARATOR))
            members.append({section.id, nullptr, &section});
    }
    Buffer buffer;
    Writer writer(buffer);
    writeObject(&writer, members, description.sections);
    const auto *const text = reinterpret_cast<const QChar *>(buffer.GetString());
    return KTTerminalText::escapedJson(QString(text, static_cast<int>(buffer.GetSize() / sizeof(QChar))));
}

QJsonObject KTArticleReport::toJSON(const KTArticleVariants &variants)
{
    QJsonObject object;
    for (const QString &key : variants.keys())
        object.insert(key, variants.value(key, QString()));
    return object;
}
