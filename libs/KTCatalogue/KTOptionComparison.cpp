#include "KTOptionComparison.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"
#include "KTVariantsText.h"

#include <KTArithmetic.h>

#include <algorithm>

namespace {

using KTCheckText::quoted;
using Rule = KTDifferenceRule;

constexpr int OPAQUE_ALPHA = 255;

/** "'alcolor' (Einbandfarbe)" */
QString named(const QString &word, const QString &name)
{
    return name.isEmpty() || name == word ? quoted(word) : QStringLiteral("%1 (%2)").arg(quoted(word), name);
}

/** "was none" or "was 'Rot'" */
QString wasText(const QString &text)
{
    return text.isEmpty() ? KTCatalogueText::tr("was none") : KTCatalogueText::tr("was %1").arg(quoted(text));
}

QString orNone(const QString &text)
{
    return text.isEmpty() ? KTCatalogueText::tr("none") : quoted(text);
}

QString colorName(const QColor &color)
{
    if (!color.isValid())
        return QString();
    return color.name(color.alpha() == OPAQUE_ALPHA ? QColor::HexRgb : QColor::HexArgb);
}

/** As KTArticleDescription names the rows of options. */
QString subjectOf(const QPair<QPair<QString, QString>, int> &id)
{
    const QString text = QStringLiteral("options.%1.%2").arg(id.first.first, id.first.second);
    return id.second == 0 ? text : QStringLiteral("%1#%2").arg(text, QString::number(id.second + 1));
}

QString keySubject(const QString &key)
{
    return QStringLiteral("options.%1").arg(key);
}

/** Two orders of the same words, of long ones only what follows their common begin. */
QPair<QString, QString> orderTexts(const QStringList &before, const QStringList &after)
{
    constexpr int MAX_WORDS = 8;
    const auto [first, second] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    if (before.size() <= MAX_WORDS || first == before.begin())
        return {KTDifferenceList::listed(before), KTDifferenceList::listed(after)};
    const QString begin = QStringLiteral("..., ");
    return {begin + KTDifferenceList::listed(QStringList(first, before.end())),
            begin + KTDifferenceList::listed(QStringList(second, after.end()))};
}

KTArticlePart optionPart(int place, std::optional<KTAttributeId> attribute = std::nullopt)
{
    return place < 0 ? KTArticlePart() : KTArticlePart {KTElementKind::Form, place, attribute};
}

QString productionText(const QString &key, const QString &value)
{
    return KTVariantsText::mcf(KTVariantsText::production(KTArticleVariants(key, value)));
}

} // namespace

KTOptionComparison::Side::Side(const KTConfiguredArticleVariantList &options)
    : list(options)
{
    ids.reserve(options.size());
    for (int i = 0; i < options.size(); ++i) {
        const QPair<QString, QString> pair(options.at(i).key(), options.at(i).value());
        const Id id(pair, counts[pair]++);
        ids.append(id);
        places.insert(id, i);
        if (!byKey.contains(pair.first))
            keys.append(pair.first);
        byKey[pair.first].append(i);
    }
}

QStringList KTOptionComparison::Side::values(const QString &key) const
{
    QStringList values;
    for (const int place : byKey.value(key)) {
        if (ids.at(place).second == 0)
            values.append(list.at(place).value());
    }
    return values;
}

QString KTOptionComparison::Side::keyName(const QString &key) const
{
    const QVector<int> options = byKey.value(key);
    return options.isEmpty() ? QString() : list.at(options.constFirst()).keyName();
}

KTOptionComparison::KTOptionComparison(KTDifferenceList *list)
    : myList(list)
    , myOlder(list->older().options())
    , myNewer(list->newer().options())
{
}

bool KTOptionComparison::areSame(const KTConfiguredArticleVariantList &older,
                                 const KTConfiguredArticleVariantList &newer)
{
    using Option = KTConfiguredArticleVariant;
    // Equality of options looks at key and value alone.
    return std::equal(older.begin(), older.end(), newer.begin(), newer.end(),
                      [](const Option &first, const Option &second) {
                          return first == second && first.keyName() == second.keyName()
                              && first.visibleName() == second.visibleName()
                              && first.editorName() == second.editorName()
                              && first.preview() == second.preview() && first.color() == second.color()
                              && first.isDefault() == second.isDefault()
                              && first.isNotAccountable() == second.isNotAccountable();
                      });
}

void KTOptionComparison::compare()
{
    compareKeys();
    compareRegrouping();
    comparePreselection();
    compareCharges();
    compareRepetition();
    compareNames();
    compareEach();
    compareOrder();
}

void KTOptionComparison::compareKeys()
{
    for (const QString &key : qAsConst(myOlder.keys)) {
        if (myNewer.has(key)) {
            compareValues(key);
            continue;
        }
        const QStringList values = myOlder.values(key);
        KTDifference &difference
            = myList->add(Rule::OptionKeyRemoved, keySubject(key),
                          KTCatalogueText::tr("%1 is gone with all its options: %2")
                              .arg(named(key, myOlder.keyName(key)), KTDifferenceList::listed(values)),
                          KTDifferenceList::listed(values), QString());
        difference.olderPart = optionPart(myOlder.byKey.value(key).constFirst());
        difference.key = key;
    }
    for (const QString &key : qAsConst(myNewer.keys)) {
        if (myOlder.has(key))
            continue;
        const QStringList values = myNewer.values(key);
        KTDifference &difference
            = myList->add(Rule::OptionKeyAdded, keySubject(key),
                          KTCatalogueText::tr("%1 can be chosen: %2")
                              .arg(named(key, myNewer.keyName(key)), KTDifferenceList::listed(values)),
                          QString(), KTDifferenceList::listed(values));
        difference.newerPart = optionPart(myNewer.byKey.value(key).constFirst());
        difference.key = key;
    }
}

/** Of a key that is on both sides. */
void KTOptionComparison::compareValues(const QString &key)
{
    const QString keyText = named(key, myNewer.keyName(key));
    QString offered;
    for (const int place : myOlder.byKey.value(key)) {
        const Id &id = myOlder.ids.at(place);
        if (id.second > 0 || myNewer.places.contains(id))
            continue;
        if (offered.isEmpty())
            offered = KTDifferenceList::listed(myNewer.values(key));
        const KTConfiguredArticleVariant &option = myOlder.list.at(place);
        KTDifference &difference
            = myList->add(Rule::OptionRemoved, subjectOf(id),
                          KTCatalogueText::tr("%1 is gone from %2; offered: %3")
                              .arg(named(option.value(), option.visibleName()), keyText, offered),
                          option.value(), QString());
        addAbout(&difference, place, -1, id);
    }
    for (const int place : myNewer.byKey.value(key)) {
        const Id &id = myNewer.ids.at(place);
        if (id.second > 0 || myOlder.places.contains(id))
            continue;
        const KTConfiguredArticleVariant &option = myNewer.list.at(place);
        KTDifference &difference
            = myList->add(Rule::OptionAdded, subjectOf(id),
                          KTCatalogueText::tr("%1 is new in %2%3")
                              .arg(named(option.value(), option.visibleName()), keyText,
                                   option.isNotAccountable() ? KTCatalogueText::tr(", free") : QString()),
                          QString(), option.value());
        addAbout(&difference, -1, place, id);
    }
}

void KTOptionComparison::comparePreselection()
{
    const KTArticleVariants before = myOlder.list.defaultVariants();
    const KTArticleVariants after = myNewer.list.defaultVariants();
    for (const QString &key : qAsConst(myNewer.keys)) {
        const QString was = before.value(key, QString());
        const QString is = after.value(key, QString());
        if (was == is)
            continue;
        const QString keyText = named(key, myNewer.keyName(key));
        const Id wasId({key, was}, 0);
        const Id isId({key, is}, 0);
        const int olderPlace = placeIn(myOlder, wasId);
        const int newerPlace = placeIn(myNewer, isId);
        const auto optionText = [](const Side &side, int place, const QString &value) {
            return named(value, place < 0 ? QString() : side.list.at(place).visibleName());
        };
        Rule rule = Rule::PreselectionChanged;
        QString message;
        if (was.isEmpty()) {
            rule = Rule::PreselectionAdded;
            const bool isFree = newerPlace >= 0 && myNewer.list.at(newerPlace).isNotAccountable();
            message = KTCatalogueText::tr("%1 comes with %2 unless something else is chosen, was without%3")
                          .arg(keyText, optionText(myNewer, newerPlace, is),
                               isFree ? QString() : KTCatalogueText::tr("; it is charged"));
        } else if (is.isEmpty()) {
            rule = Rule::PreselectionRemoved;
            message = KTCatalogueText::tr("%1 comes without a choice, was %2")
                          .arg(keyText, optionText(myOlder, olderPlace, was));
        } else {
            message
                = KTCatalogueText::tr("%1 comes with %2 unless something else is chosen, was %3%4")
                      .arg(keyText, optionText(myNewer, newerPlace, is), optionText(myOlder, olderPlace, was),
                           placeIn(myNewer, wasId) < 0 ? KTCatalogueText::tr(", which is gone") : QString());
        }
        KTDifference &difference = myList->add(rule, keySubject(key), message, was, is);
        difference.olderPart = optionPart(olderPlace, KTAttributeId::FormPreselected);
        difference.newerPart = optionPart(newerPlace, KTAttributeId::FormPreselected);
        difference.key = key;
    }
}

void KTOptionComparison::compareCharges()
{
    for (int place = 0; place < myOlder.ids.size(); ++place) {
        const Id &id = myOlder.ids.at(place);
        const int newerPlace = placeIn(myNewer, id);
        if (newerPlace < 0)
            continue;
        const KTConfiguredArticleVariant &option = myNewer.list.at(newerPlace);
        if (option.isNotAccountable() == myOlder.list.at(place).isNotAccountable())
            continue;
        const QString text
            = KTCatalogueText::tr("%1 of %2")
                  .arg(named(option.value(), option.visibleName()), named(option.key(), option.keyName()));
        const QString free = KTCatalogueText::tr("free");
        const QString charged = KTCatalogueText::tr("charged");
        KTDifference &difference = option.isNotAccountable()
            ? myList->add(Rule::OptionNotCharged, subjectOf(id),
                          KTCatalogueText::tr("%1 is free, was charged").arg(text), charged, free)
            : myList->add(Rule::OptionCharged, subjectOf(id),
                          KTCatalogueText::tr("%1 is charged, was free").arg(text), free, charged);
        addAbout(&difference, place, newerPlace, id, KTAttributeId::FormNotAccountable);
    }
}

void KTOptionComparison::compareRepetition()
{
    for (int place = 0; place < myOlder.ids.size(); ++place) {
        const Id &id = myOlder.ids.at(place);
        const int before = myOlder.counts.value(id.first);
        const int after = myNewer.counts.value(id.first);
        if (id.second > 0 || after == 0 || before == after)
            continue;
        KTDifference &difference = myList->add(
            Rule::OptionRepeated, subjectOf(id),
            KTCatalogueText::tr("%1 of %2 stands in the list %3, was %4")
                .arg(quoted(id.first.second), quoted(id.first.first),
                     after == 1 ? KTCatalogueText::tr("once") : KTCatalogueText::tr("%1 times").arg(after),
                     before == 1 ? KTCatalogueText::tr("once") : KTCatalogueText::tr("%1 times").arg(before)),
            QString::number(before), QString::number(after));
        addAbout(&difference, place, placeIn(myNewer, id), id);
    }
}

/** Options that are gone, but whose production form a new one has. */
void KTOptionComparison::compareRegrouping()
{
    QHash<QString, int> added;
    for (int place = 0; place < myNewer.ids.size(); ++place) {
        const Id &id = myNewer.ids.at(place);
        if (id.second > 0 || myOlder.places.contains(id))
            continue;
        const QString production = productionText(id.first.first, id.first.second);
        if (!production.isEmpty() && !added.contains(production))
            added.insert(production, place);
    }
    for (int place = 0; place < myOlder.ids.size() && !added.isEmpty(); ++place) {
        const Id &id = myOlder.ids.at(place);
        if (id.second > 0 || myNewer.places.contains(id))
            continue;
        const QString production = productionText(id.first.first, id.first.second);
        const int newerPlace = production.isEmpty() ? -1 : added.value(production, -1);
        if (newerPlace < 0)
            continue;
        const QString before = KTVariantsText::mcf(KTArticleVariants(id.first.first, id.first.second));
        const Id &newerId = myNewer.ids.at(newerPlace);
        const QString after
            = KTVariantsText::mcf(KTArticleVariants(newerId.first.first, newerId.first.second));
        KTDifference &difference
            = myList->add(Rule::CompoundRegrouped, subjectOf(id),
                          KTCatalogueText::tr("in MCF %1 becomes %2; production gets the same, %3")
                              .arg(quoted(before), quoted(after), quoted(production)),
                          before, after);
        difference.olderPart = optionPart(place);
        difference.newerPart = optionPart(newerPlace);
    }
}

/** What all options of a key usually have in common, told once for those that change in the same way. */
template <typename Getter>
void KTOptionComparison::compareShared(KTDifferenceRule rule, KTAttributeId attribute, const QString &what,
                                       Getter getter)
{
    struct Group
    {
        int olderPlace;
        int newerPlace;
        QStringList values;
    };
    QVector<Group> groups;
    QHash<QPair<QString, QPair<QString, QString>>, int> indexes;
    QHash<QString, int> commonCounts;
    for (int place = 0; place < myOlder.ids.size(); ++place) {
        const Id &id = myOlder.ids.at(place);
        const int newerPlace = placeIn(myNewer, id);
        if (newerPlace < 0)
            continue;
        ++commonCounts[id.first.first];
        const QString before = getter(myOlder.list.at(place));
        const QString after = getter(myNewer.list.at(newerPlace));
        if (before == after)
            continue;
        const QPair<QString, QPair<QString, QString>> change(id.first.first, {before, after});
        const auto found = indexes.constFind(change);
        if (found == indexes.constEnd()) {
            indexes.insert(change, KTArithmetic::sizeOf(groups));
            groups.append({place, newerPlace, {id.first.second}});
        } else {
            groups[*found].values.append(id.first.second);
        }
    }
    for (const Group &group : qAsConst(groups)) {
        const QString key = myOlder.list.at(group.olderPlace).key();
        const QString before = getter(myOlder.list.at(group.olderPlace));
        const QString after = getter(myNewer.list.at(group.newerPlace));
        const QString some = group.values.size() == commonCounts.value(key)
            ? QString()
            : KTCatalogueText::tr(" for %1").arg(KTDifferenceList::listed(group.values));
        KTDifference &difference
            = myList->add(rule, keySubject(key),
                          KTCatalogueText::tr("%1 of %2%3 is %4, %5")
                              .arg(what, quoted(key), some, orNone(after), wasText(before)),
                          before, after);
        difference.olderPart = optionPart(group.olderPlace, attribute);
        difference.newerPart = optionPart(group.newerPlace, attribute);
        difference.key = key;
    }
}

void KTOptionComparison::compareNames()
{
    compareShared(Rule::KeyNameChanged, KTAttributeId::FormKeyName, KTCatalogueText::tr("the name"),
                  [](const KTConfiguredArticleVariant &option) { return option.keyName(); });
    compareShared(Rule::OptionEditorChanged, KTAttributeId::FormEditorName, KTCatalogueText::tr("the editor"),
                  [](const KTConfiguredArticleVariant &option) { return option.editorName(); });
}

/** What each option has for itself. */
void KTOptionComparison::compareEach()
{
    struct Row
    {
        Rule rule;
        KTAttributeId attribute;
        const char *what;
        QString (*get)(const KTConfiguredArticleVariant &);
    };
    static constexpr Row ROWS[] = {
        {Rule::OptionNameChanged,    KTAttributeId::FormValueName,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the name"),
         [](const KTConfiguredArticleVariant &option) { return option.visibleName(); }     },
        {Rule::OptionColorChanged,   KTAttributeId::FormColor,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the colour"),
         [](const KTConfiguredArticleVariant &option) { return colorName(option.color()); }},
        {Rule::OptionPreviewChanged, KTAttributeId::FormPreview,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the preview"),
         [](const KTConfiguredArticleVariant &option) { return option.preview(); }         },
    };
    for (int place = 0; place < myOlder.ids.size(); ++place) {
        const Id &id = myOlder.ids.at(place);
        const int newerPlace = placeIn(myNewer, id);
        if (newerPlace < 0)
            continue;
        for (const Row &row : ROWS) {
            const QString before = row.get(myOlder.list.at(place));
            const QString after = row.get(myNewer.list.at(newerPlace));
            if (before == after)
                continue;
            KTDifference &difference
                = myList->add(row.rule, subjectOf(id),
                              KTCatalogueText::tr("%1 of %2 of %3 is %4, %5")
                                  .arg(KTCatalogueText::tr(row.what), quoted(id.first.second),
                                       quoted(id.first.first), orNone(after), wasText(before)),
                              before, after);
            addAbout(&difference, place, newerPlace, id, row.attribute);
        }
    }
}

void KTOptionComparison::compareOrder()
{
    const auto common = [](const Side &side, const Side &other) {
        QVector<Id> ids;
        for (const Id &id : side.ids) {
            if (other.places.contains(id))
                ids.append(id);
        }
        return ids;
    };
    const QVector<Id> before = common(myOlder, myNewer);
    const QVector<Id> after = common(myNewer, myOlder);
    if (before == after)
        return;
    const auto byKey = [](const QVector<Id> &ids) {
        QHash<QString, QStringList> values;
        for (const Id &id : ids)
            values[id.first.first].append(id.first.second);
        return values;
    };
    const QHash<QString, QStringList> valuesBefore = byKey(before);
    const QHash<QString, QStringList> valuesAfter = byKey(after);
    bool isTold = false;
    for (const QString &key : qAsConst(myNewer.keys)) {
        const QStringList was = valuesBefore.value(key);
        const QStringList is = valuesAfter.value(key);
        if (was == is)
            continue;
        isTold = true;
        const auto [wasText, isText] = orderTexts(was, is);
        KTDifference &difference = myList->add(
            Rule::OptionOrderChanged, keySubject(key),
            KTCatalogueText::tr("%1 lists %2; was %3").arg(named(key, myNewer.keyName(key)), isText, wasText),
            wasText, isText);
        difference.olderPart = optionPart(myOlder.byKey.value(key).constFirst());
        difference.newerPart = optionPart(myNewer.byKey.value(key).constFirst());
        difference.key = key;
    }
    if (isTold)
        return;
    const auto pairs = [](const QVector<Id> &ids) {
        QStringList texts;
        for (const Id &id : ids)
            texts.append(QStringLiteral("%1:%2").arg(id.first.first, id.first.second));
        return texts;
    };
    const auto [was, is] = orderTexts(pairs(before), pairs(after));
    KTDifference &difference = myList->add(
        Rule::OptionOrderChanged, QStringLiteral("options"),
        KTCatalogueText::tr("the options are listed in the order %1; was %2").arg(is, was), was, is);
    difference.olderPart = optionPart(0);
    difference.newerPart = optionPart(0);
}

void KTOptionComparison::addAbout(KTDifference *difference, int olderPlace, int newerPlace, const Id &id,
                                  std::optional<KTAttributeId> attribute) const
{
    difference->olderPart = optionPart(olderPlace, attribute);
    difference->newerPart = optionPart(newerPlace, attribute);
    difference->key = id.first.first;
    difference->value = id.first.second;
}
