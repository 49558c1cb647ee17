#include "KTPageAlignment.h"

#include <KTFactRow.h>
#include <KTKeywordRow.h>

#include <QDebug>

#include <iterator>

namespace {

// On purpose a cover reads as left: it has no place of its own.
constexpr KTKeywordRow<KTPageAlignmentEnum> KEYWORDS[] = {
    {"left",      KTPageAlignmentLeft    },
    {"leftpage",  KTPageAlignmentLeft    },
    {"right",     KTPageAlignmentRight   },
    {"rightpage", KTPageAlignmentRight   },
    {"top",       KTPageAlignmentTop     },
    {"bottom",    KTPageAlignmentBottom  },
    {"center",    KTPageAlignmentCenter  },
    {"middle",    KTPageAlignmentMiddle  },
    {"fullpage",  KTPageAlignmentFullpage},
    {"cover",     KTPageAlignmentLeft    },
    {"coverpage", KTPageAlignmentLeft    },
};

constexpr KTStringLiteral PDF_ENDING = ".pdf";
constexpr KTStringLiteral LEFT_PDF = "_left.pdf";
constexpr KTStringLiteral RIGHT_PDF = "_right.pdf";
constexpr KTStringLiteral CENTER_PDF = "_center.pdf";

struct PlaceRow
{
    KTPageAlignmentEnum value;
    const char *text;
    const KTStringLiteral &pdfPostFix;
};

constexpr PlaceRow PLACES[] = {
    {KTPageAlignmentLeft,     QT_TRANSLATE_NOOP("KTPageAlignment", "links"),               LEFT_PDF  },
    {KTPageAlignmentRight,    QT_TRANSLATE_NOOP("KTPageAlignment", "rechts"),              RIGHT_PDF },
    {KTPageAlignmentMiddle,   QT_TRANSLATE_NOOP("KTPageAlignment", "auf dem Buchrücken"), CENTER_PDF},
    {KTPageAlignmentFullpage, QT_TRANSLATE_NOOP("KTPageAlignment", "auf dieser Seite"),    CENTER_PDF},
    {KTPageAlignmentTop,      QT_TRANSLATE_NOOP("KTPageAlignment", "oben"),                CENTER_PDF},
    {KTPageAlignmentBottom,   QT_TRANSLATE_NOOP("KTPageAlignment", "unten"),               CENTER_PDF},
    {KTPageAlignmentCenter,   QT_TRANSLATE_NOOP("KTPageAlignment", "mittig"),              CENTER_PDF},
};
constexpr PlaceRow NO_PLACE = {static_cast<KTPageAlignmentEnum>(0), nullptr, CENTER_PDF};
static_assert(KTKeywordRows::bits(KEYWORDS) == (1 << std::size(PLACES)) - 1, "every place has a keyword");

} // namespace

KTPageAlignment::KTPageAlignment()
    : KTPageAlignment(static_cast<KTPageAlignmentEnum>(0))
{
}

KTPageAlignment::KTPageAlignment(KTPageAlignmentEnum value)
    : KTEnumWrapper(value)
{
}

KTPageAlignment::KTPageAlignment(const QString &text)
    : KTPageAlignment()
{
    setValue(text);
}

QString KTPageAlignment::pdfPostFix(bool sidesApart) const
{
    return (sidesApart ? KTFactRows::find(PLACES, value(), NO_PLACE) : NO_PLACE).pdfPostFix;
}

QString KTPageAlignment::modifyProductionPath(const QString &path, bool sidesApart) const
{
    QString modified = path;
    return modified.replace(PDF_ENDING, pdfPostFix(sidesApart), Qt::CaseInsensitive);
}

QString KTPageAlignment::describe() const
{
    static const auto *const myTable
        = KTFactRows::createTextTable<KTPageAlignmentEnum>("KTPageAlignment", PLACES);
    return myTable->valueOf(value());
}

void KTPageAlignment::fillTable(KTEnumToStringTable<KTPageAlignmentEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
    table->defaultValue = KTPageAlignmentLeft;
}

QDebug operator<<(QDebug stream, const KTPageAlignment &alignment)
{
    return stream << "KTPageAlignment:" << alignment.debugText();
}
