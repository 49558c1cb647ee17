#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>
#include <KTLookUpTable.h>

#include <QMetaType>

class QDebug;
class QDomElement;

/** Ways to bind the pages of a product. */
enum KTPRODUCTBASE_EXPORT KTPageBindingEnum : qint32 {
    KTPageBindingUnknown = 0,
    KTPageBindingGlue = 1,
    KTPageBindingLayflat = 2,
    KTPageBindingStapled = 4,
    KTPageBindingSpiral = 8,
};
KT_DECLARE_FLAG_OPERATORS(KTPageBindingEnum)

/** How the pages of a product are bound, or the bindings that something suits. */
class KTPRODUCTBASE_EXPORT KTPageBinding : public KTEnumWrapper<KTPageBindingEnum>
{
public:
    /** An unknown binding: value 0. */
    KTPageBinding();
    KTPageBinding(KTPageBindingEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give an unknown binding. */
    KTPageBinding(const QString &keywords);
    template <typename T, typename = KTNoClassification<T>>
    KTPageBinding(T) = delete;

    /** Builds a table of the display names, translated at this moment, which the caller owns. */
    [[nodiscard]] static KTLookUpTable<KTPageBinding, QString> *initPageBindingNames();
    /** The display names, translated on first use and kept for the life of the process; for any thread. */
    static KTLookUpTable<KTPageBinding, QString> *pageBindingNames();
    /** The display name of exactly one binding, from pageBindingNames(); empty where there is none. */
    QString humanReadableName() const;

    /** Appends a "pageBinding" child, unless the value is 0 or a common binding (glue, lay-flat, stapled) is
     * in it.
     */
    void toTemplates2Format(QDomElement &element) const;

    void fillTable(KTEnumToStringTable<KTPageBindingEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTPageBinding)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageBinding &binding);
