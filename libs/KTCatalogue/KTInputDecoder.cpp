#include "KTInputDecoder.h"

#include "KTCatalogueText.h"

#include <QRegularExpression>

#include <cerrno>

namespace {

struct EncodingRow
{
    const char *name;
    /** What iconv calls it; null for UTF-8 and its subset. */
    const char *converter;
};

constexpr EncodingRow ENCODINGS[] = {
    {"UTF-8",        nullptr      },
    {"US-ASCII",     nullptr      },
    {"ASCII",        nullptr      },
    {"ISO-8859-1",   "ISO-8859-1" },
    {"LATIN1",       "ISO-8859-1" },
    {"ISO-8859-15",  "ISO-8859-15"},
    {"LATIN-9",      "ISO-8859-15"},
    {"windows-1252", "CP1252"     },
    {"CP1252",       "CP1252"     },
};

struct MagicRow
{
    const char *bytes;
    int length;
    /** How many of them are no text. */
    int skipped;
    /** Null for UTF-8. */
    const char *encoding;
    /** What is wrong with such a file; null for nothing. */
    const char *error;
};

// Longer ones stand before those that they begin with.
constexpr MagicRow MAGICS[] = {
    {"\xef\xbb\xbf",     3, 3, nullptr,    nullptr                                             },
    {"\xff\xfe\0\0",     4, 0, nullptr,    "the file is in UTF-32; save it as UTF-8"           },
    {"\0\0\xfe\xff",     4, 0, nullptr,    "the file is in UTF-32; save it as UTF-8"           },
    {"\xff\xfe",         2, 2, "UTF-16LE", nullptr                                             },
    {"\xfe\xff",         2, 2, "UTF-16BE", nullptr                                             },
    {"<\0?\0",           4, 0, "UTF-16LE", nullptr                                             },
    {"\0<\0?",           4, 0, "UTF-16BE", nullptr                                             },
    {"\x1f\x8b",         2, 0, nullptr,    "the file is compressed with gzip; unpack it first" },
    {"BZh",              3, 0, nullptr,    "the file is compressed with bzip2; unpack it first"},
    {"\xfd"
     "7zXZ",        5, 0, nullptr,    "the file is compressed with xz; unpack it first"   },
    {"PK\x03\x04",       4, 0, nullptr,    "the file is a ZIP archive; unpack it first"        },
    {"\x4c\x6f\xa7\x94", 4, 0, nullptr,    "the file is in EBCDIC; save it as UTF-8"           },
};

constexpr int MAX_DECLARATION = 1024;
constexpr char DECLARATION_BEGIN[] = "<?xml";
constexpr char DECLARATION_END[] = "?>";

} // namespace

KTInputDecoder::~KTInputDecoder()
{
    if (myConverter)
        iconv_close(myConverter);
}

bool KTInputDecoder::isEnough(const QByteArray &head)
{
    const QByteArray begin = DECLARATION_BEGIN;
    const bool mayBeDeclaration
        = head.size() < begin.size() ? begin.startsWith(head) : head.startsWith(begin);
    if (!mayBeDeclaration)
        return head.size() >= begin.size();
    return head.size() >= MAX_DECLARATION || head.contains(DECLARATION_END);
}

int KTInputDecoder::begin(const QByteArray &head)
{
    for (const MagicRow &row : MAGICS) {
        if (!head.startsWith(QByteArray::fromRawData(row.bytes, row.length)))
            continue;
        myError = QString::fromLatin1(row.error);
        if (row.encoding)
            open(row.encoding, QString::fromLatin1(row.encoding), KTCharacterWidth::Utf16);
        return row.skipped;
    }
    static const auto *const myDeclaration = new QRegularExpression(
        QStringLiteral("^<\\?xml\\s[^>]*?\\sencoding\\s*=\\s*[\"']([A-Za-z0-9._-]+)[\"']"));
    const QRegularExpressionMatch match
        = myDeclaration->match(QString::fromLatin1(head.left(head.indexOf(DECLARATION_END))));
    if (!match.hasMatch())
        return 0;
    const QString declared = match.captured(1);
    for (const EncodingRow &row : ENCODINGS) {
        if (declared.compare(QLatin1String(row.name), Qt::CaseInsensitive) != 0)
            continue;
        if (row.converter)
            open(row.converter, declared, KTCharacterWidth::SingleByte);
        return 0;
    }
    myError = declared.startsWith(QLatin1String("UTF-16"), Qt::CaseInsensitive)
        ? KTCatalogueText::tr("the file says that it is in UTF-16, but it is not")
        : KTCatalogueText::tr(
              "the encoding '%1' is none of UTF-8, UTF-16, ISO-8859-1, ISO-8859-15 and windows-1252")
              .arg(declared);
    return 0;
}

void KTInputDecoder::beginAs(const KTInputDecoder &other)
{
    if (other.myConverterName)
        open(other.myConverterName, other.myEncoding, other.myWidth);
}

void KTInputDecoder::open(const char *encoding, const QString &name, KTCharacterWidth width)
{
    myConverterName = encoding;
    myEncoding = name;
    myWidth = width;
    const iconv_t converter = iconv_open("UTF-8", encoding);
    // iconv has a value of its own for a failure.
    if (converter == reinterpret_cast<iconv_t>(-1)) // NOLINT(performance-no-int-to-ptr)
        myError = KTCatalogueText::tr("this machine cannot read %1").arg(myEncoding);
    else
        myConverter = converter;
}

QByteArray KTInputDecoder::decode(const QByteArray &bytes, bool isLast)
{
    if (!myConverter)
        return bytes;
    QByteArray input = myRest + bytes;
    // No character of these encodings takes more than three bytes in UTF-8 for each of its own.
    QByteArray output(3 * input.size(), Qt::Uninitialized);
    char *from = input.data();
    auto fromLeft = static_cast<std::size_t>(input.size());
    char *to = output.data();
    auto toLeft = static_cast<std::size_t>(output.size());
    const bool isDone = iconv(myConverter, &from, &fromLeft, &to, &toLeft) != static_cast<std::size_t>(-1);
    myRest = input.right(static_cast<int>(fromLeft));
    if (!isDone && (errno == EILSEQ || (errno == EINVAL && isLast))) {
        myError = errno == EINVAL
            ? KTCatalogueText::tr("the file ends inside of a character of %1").arg(myEncoding)
            : KTCatalogueText::tr("the byte 0x%1 is no character of %2")
                  .arg(static_cast<uchar>(myRest.at(0)), 2, 16, QLatin1Char('0'))
                  .arg(myEncoding);
    }
    output.chop(static_cast<int>(toLeft));
    return output;
}
