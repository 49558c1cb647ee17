#include "KTPageBinding.h"

#include <KTFactRow.h>
#include <KTKeywordRow.h>
#include <KTXMLBuilder.h>

#include <QDebug>
#include <QDomElement>

namespace {

constexpr KTKeywordRow<KTPageBindingEnum> KEYWORDS[] = {
    {"unknown",  KTPageBindingUnknown},
    {"glue",     KTPageBindingGlue   },
    {"glued",    KTPageBindingGlue   },
    {"layflat",  KTPageBindingLayflat},
    {"lay_flat", KTPageBindingLayflat},
    {"stapled",  KTPageBindingStapled},
    {"spiral",   KTPageBindingSpiral },
};

// A spiral binding has no name.
constexpr KTTextRow<KTPageBindingEnum> NAMES[] = {
    {KTPageBindingGlue,    QT_TRANSLATE_NOOP("KTPageBinding", "klassische Buchbindung")},
    {KTPageBindingLayflat, QT_TRANSLATE_NOOP("KTPageBinding", "Lay-Flat-Bindung")      },
    {KTPageBindingStapled, QT_TRANSLATE_NOOP("KTPageBinding", "Rückstichbindung")     },
};

constexpr auto COMMON_BINDINGS = KTPageBindingGlue | KTPageBindingLayflat | KTPageBindingStapled;

constexpr KTStringLiteral PAGE_BINDING_TAG = "pageBinding";

} // namespace

KTPageBinding::KTPageBinding()
    : KTPageBinding(KTPageBindingUnknown)
{
}

KTPageBinding::KTPageBinding(KTPageBindingEnum value)
    : KTEnumWrapper(value)
{
}

KTPageBinding::KTPageBinding(const QString &keywords)
    : KTPageBinding()
{
    setValue(keywords);
}

KTLookUpTable<KTPageBinding, QString> *KTPageBinding::initPageBindingNames()
{
    return KTFactRows::createTextTable<KTPageBinding>("KTPageBinding", NAMES);
}

KTLookUpTable<KTPageBinding, QString> *KTPageBinding::pageBindingNames()
{
    static auto *const table = initPageBindingNames();
    return table;
}

QString KTPageBinding::humanReadableName() const
{
    return pageBindingNames()->valueOf(*this);
}

void KTPageBinding::toTemplates2Format(QDomElement &element) const
{
    // A template without a binding is good for the common ones.
    if (isNull() || matches(COMMON_BINDINGS))
        return;
    KTXMLBuilder::buildDomElement(element, PAGE_BINDING_TAG, encodeCSV());
}

void KTPageBinding::fillTable(KTEnumToStringTable<KTPageBindingEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTPageBinding &binding)
{
    return stream << "KTPageBinding:" << binding.debugText();
}
