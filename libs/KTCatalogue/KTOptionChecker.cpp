#include "KTOptionChecker.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"
#include "KTVariantsText.h"

#include <KTConfiguredArticleVariantList.h>
#include <KTXMLParser.h>

#include <algorithm>

using KTCheckText::quoted;

namespace {

using Id = KTAttributeId;

/** True for the characters that can separate or fill in anything in one of the forms of an option. */
bool isSeparator(QChar character)
{
    switch (character.unicode()) {
    case u',':
    case u':':
    case u';':
    case u'|':
    case u'+':
    case u'%':
        return true;
    default:
        return false;
    }
}

bool hasSeparator(QStringView text)
{
    return std::any_of(text.begin(), text.end(), &isSeparator);
}

void reportLoss(KTElementCursor *cursor, const QString &form, const QString &text,
                const KTArticleVariants &readBack)
{
    const QString result
        = readBack.isValid() ? quoted(KTVariantsText::mcf(readBack)) : KTCatalogueText::tr("nothing");
    cursor->report(
        KTRule::ReservedCharacter,
        KTCatalogueText::tr("the application writes the option as %1 in %2, which reads back as %3")
            .arg(quoted(text), form, result),
        cursor->attribute(hasSeparator(cursor->value(Id::FormKey)) ? Id::FormKey : Id::FormValue));
}

/** Lets the library write the option and looks whether it can be read back. */
void checkCompound(KTElementCursor *cursor, const QString &key, const QString &value)
{
    const KTArticleVariants option(key, value);
    const KTArticleVariants production = option.toXTCI();
    if (!production.isValid()) {
        cursor->report(KTRule::CompoundParts,
                       KTCatalogueText::tr(
                           "%1 and %2 have different numbers of parts; the order text and the production "
                           "form leave the option out")
                           .arg(quoted(key), quoted(value)),
                       cursor->attribute(Id::FormValue));
        return;
    }
    const QString mcf = option.toMCF();
    const KTArticleVariants fromMcf = KTArticleVariants::createFromMCF(mcf);
    if (fromMcf != option) {
        reportLoss(cursor, QStringLiteral("MCF"), mcf, fromMcf);
        return;
    }
    const QString orderText = option.toOrderTxt();
    const KTArticleVariants fromOrderText = KTVariantsText::fromOrderText(orderText);
    if (fromOrderText != production)
        reportLoss(cursor, KTCatalogueText::tr("the order text"), orderText, fromOrderText);
}

} // namespace

void KTOptionChecker::begin()
{
    myLines.clear();
    myPreselections.clear();
}

void KTOptionChecker::check(KTElementCursor *cursor)
{
    const QStringView key = cursor->value(Id::FormKey);
    const QStringView value = cursor->value(Id::FormValue);
    if (key.isEmpty() || value.isEmpty()) {
        cursor->report(KTRule::IncompleteOption,
                       KTCatalogueText::tr("the option has no %1; the application skips it")
                           .arg(key.isEmpty() ? KTCatalogueText::tr("key") : KTCatalogueText::tr("value")));
        return;
    }
    const QPair<QStringView, QStringView> option(key, value);
    const auto earlier = myLines.constFind(option);
    if (earlier != myLines.constEnd()) {
        cursor->report(KTRule::DuplicateOption,
                       KTCatalogueText::tr(
                           "%1 with %2 stands in line %3 already; the application lists it again, but an "
                           "order cannot tell the two")
                           .arg(quoted(key.toString()), quoted(value.toString()), QString::number(*earlier)));
    } else {
        myLines.insert(option, cursor->line());
    }
    if (hasSeparator(key) || hasSeparator(value))
        checkCompound(cursor, key.toString(), value.toString());
    const QStringView isPreselected = cursor->value(Id::FormPreselected);
    if (isPreselected != QLatin1String("false") && KTXMLParser::parseBool(isPreselected).value_or(false)) {
        Preselection &preselection = myPreselections[key];
        ++preselection.count;
        preselection.element = cursor->index();
        preselection.attribute = cursor->attribute(Id::FormPreselected);
    }
}

void KTOptionChecker::end(KTElementCursor *cursor) const
{
    const bool isAmbiguous
        = std::any_of(myPreselections.begin(), myPreselections.end(),
                      [](const Preselection &preselection) { return preselection.count > 1; });
    if (!isAmbiguous)
        return;
    const KTArticleVariants winners
        = KTConfiguredArticleVariantList(cursor->article().root()).defaultVariants();
    for (auto it = myPreselections.begin(); it != myPreselections.end(); ++it) {
        if (it->count < 2)
            continue;
        const QString key = it.key().toString();
        cursor->reportAt(
            it->element, KTRule::SeveralPreselected,
            KTCatalogueText::tr("%1 options of %2 are preselected; the application takes the last one, %3")
                .arg(it->count)
                .arg(quoted(key), quoted(winners.value(key, QString()))),
            it->attribute);
    }
}
