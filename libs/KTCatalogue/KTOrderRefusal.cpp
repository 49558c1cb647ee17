#include "KTOrderRefusal.h"

#include "KTCatalogueText.h"

QString KTOrderRefusal::toString() const
{
    if (reason == Reason::PageCount) {
        if (nearestPages.isEmpty())
            return KTCatalogueText::tr("cannot have %1 pages; no page count is valid").arg(pages);
        QStringList counts;
        for (const int count : nearestPages)
            counts.append(QString::number(count));
        return KTCatalogueText::tr("cannot have %1 pages; the nearest valid page counts: %2")
            .arg(QString::number(pages), counts.join(KTCatalogueText::tr(" and ")));
    }
    QString text = reason == Reason::UnknownValue
        ? KTCatalogueText::tr("does not offer '%1' for '%2'").arg(value, key)
        : KTCatalogueText::tr("has no option '%1'").arg(key);
    text += offered.isEmpty() ? KTCatalogueText::tr("; it offers none")
                              : KTCatalogueText::tr("; offered: ") + offered.join(QStringLiteral(", "));
    if (!nearest.isNull())
        text += KTCatalogueText::tr("; did you mean '%1'?").arg(nearest);
    return text;
}
