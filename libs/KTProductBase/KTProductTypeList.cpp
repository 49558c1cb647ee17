#include "KTProductTypeList.h"

#include <QDebug>
#include <QMessageLogger>
#include <QSet>

#include <algorithm>

namespace {

constexpr QChar CSV_SEPARATOR = u',';

// The evaluation of the logs knows the warning by this context, so it does not move with the source.
constexpr char WARNING_FILE[] = "libs/KTProductBase/KTProductTypeList";
constexpr int WARNING_LINE = 106;
constexpr char WARNING_FUNCTION[] = "void KTProductTypeList::addWithoutDoubles(const KTProductType &)";
constexpr char WARNING_CATEGORY[] = "default";

} // namespace

KTProductTypeList::KTProductTypeList(const QList<KTProductType> &types)
    : QList<KTProductType>(types)
{
}

KTProductTypeList::KTProductTypeList(const QStringList &codes)
{
    for (const QString &code : codes) {
        if (!code.isEmpty())
            append(KTProductType(code));
    }
}

KTProductTypeList KTProductTypeList::buildFromCSV(const QString &text)
{
    return KTProductTypeList(text.split(CSV_SEPARATOR, Qt::SkipEmptyParts));
}

QStringList KTProductTypeList::toStringList() const
{
    QStringList codes;
    for (const KTProductType &type : *this)
        codes.append(type.toString());
    return codes;
}

bool KTProductTypeList::containsAgenda() const
{
    return std::any_of(begin(), end(), [](const KTProductType &type) { return type.isAgenda(); });
}

bool KTProductTypeList::containsCalendar() const
{
    return std::any_of(begin(), end(), [](const KTProductType &type) { return type.isCalendar(); });
}

bool KTProductTypeList::containsNotOnlyCalendars() const
{
    return std::any_of(begin(), end(), [](const KTProductType &type) { return !type.isCalendar(); });
}

void KTProductTypeList::addWithoutDoubles(const KTProductType &type)
{
    if (type.isUnknown()) {
        QMessageLogger(WARNING_FILE, WARNING_LINE, WARNING_FUNCTION, WARNING_CATEGORY).warning()
            << "there is no" << type.orderTxtName();
        return;
    }
    if (!contains(type))
        append(type);
}

void KTProductTypeList::addWithoutDoubles(const KTProductTypeList &other)
{
    // When the other list is this one, all of it is present, and nothing changes under the loop.
    QSet<KTProductType> present(begin(), end());
    for (const KTProductType &type : other) {
        if (type.isUnknown()) {
            addWithoutDoubles(type);
        } else if (!present.contains(type)) {
            append(type);
            present.insert(type);
        }
    }
}

QDebug operator<<(QDebug stream, const KTProductTypeList &types)
{
    return QtPrivate::printSequentialContainer(stream, "", types.toStringList());
}
