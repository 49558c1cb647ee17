#pragma once

#include "KTProductType.h"

#include <QList>
#include <QMetaType>
#include <QStringList>

#include <initializer_list>
#include <type_traits>
#include <utility>

/** Product types in the order they were added; one may stand in it twice. */
class KTPRODUCTBASE_EXPORT KTProductTypeList : public QList<KTProductType>
{
public:
    KTProductTypeList() = default;
    /** All of them, unknown ones and duplicates too. */
    KTProductTypeList(const QList<KTProductType> &types);
    KTProductTypeList(QList<KTProductType> &&types) noexcept
        : QList<KTProductType>(std::move(types))
    {
    }
    /** The same. A template, so that it takes no list of texts: that is one of codes. */
    template <typename T, typename = std::enable_if_t<std::is_same_v<T, KTProductType>>>
    KTProductTypeList(std::initializer_list<T> types)
        : QList<KTProductType>(types)
    {
    }
    /** A product type for each code; empty ones are skipped, duplicates kept. */
    KTProductTypeList(const QStringList &codes);

    /** Reads codes separated by ","; they are not trimmed. */
    [[nodiscard]] static KTProductTypeList buildFromCSV(const QString &text);

    [[nodiscard]] QStringList toStringList() const;
    bool containsAgenda() const;
    bool containsCalendar() const;
    /** True when at least one element is no calendar. */
    bool containsNotOnlyCalendars() const;

    /** Appends the type unless the list has it; an unknown one is refused with a warning. */
    void addWithoutDoubles(const KTProductType &type);
    /** Adds one type after the other; the other list may be this one. */
    void addWithoutDoubles(const KTProductTypeList &other);
};

Q_DECLARE_TYPEINFO(KTProductTypeList, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTProductTypeList)

/** Writes the codes like ("CAL29", "ALB9"). */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTProductTypeList &types);
