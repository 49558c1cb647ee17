#include "KTFuzz.h"

#include <KTArithmetic.h>
#include <KTCatalogueComparison.h>
#include <KTCatalogueFormat.h>
#include <KTOrderImpact.h>
#include <KTVariantsText.h>

#include <QBuffer>
#include <QSet>

#include <algorithm>

namespace {

struct Node
{
    QString name;
    QVector<QPair<QString, QString>> attributes;
    QVector<Node> children;
};

Node node(const char *name, std::initializer_list<std::pair<const char *, const char *>> attributes,
          const QVector<Node> &children = {})
{
    Node node {QString::fromLatin1(name), {}, children};
    for (const auto &[attribute, value] : attributes)
        node.attributes.append({QString::fromLatin1(attribute), QString::fromLatin1(value)});
    return node;
}

/** A little of everything that is compared. */
Node sample()
{
    const char *const price = "price_class";
    return node(
        "catalogue",
        {
    },
        {node(
             "article",
             {{"art_id", "7"},
              {"name", "Book"},
              {"article_class", "book"},
              {"cover_type", "HARDCOVER"},
              {"productname", "ALB9_30"},
              {price, "ALB9"},
              {"shipping_group", "2"},
              {"pages", "26"},
              {"max_pages", "34"},
              {"page_step", "2"}},
             {node("composition", {{"units", "mm"}},
                   {node("spine", {{"packages_per_block", "2"}, {"base_width", "6"}, {"block_width", "1"}})}),
              node("page", {{"type", "fullcover"}, {"alignment", "left, right"}, {"width", "210"}}),
              node("barcodes", {{"units", "mm"}}, {node("barcode", {{"pageNr", "0"}, {"width", "30"}})}),
              node("forms", {},
                   {node("form", {{"key", "alcolor"}, {"value", "red"}, {"preselected", "true"}}),
                    node("form", {{"key", "alcolor"}, {"value", "blue"}, {"value_name", "Blau"}}),
                    node("form", {{"key", "giftboxcolor;boxstyle"}, {"value", "black;wood"}})})}),
         node("article", {{"id", "8"}, {"article_class", "picture_box"}, {"pages", "5"}}),
         node("article", {{"id", "6322"}, {"pages", "5"}})});
}

void collect(Node *node, QVector<Node *> *nodes)
{
    nodes->append(node);
    for (Node &child : node->children)
        collect(&child, nodes);
}

QString takeValue(KTFuzz::Bytes *input)
{
    static const char *const VALUES[]
        = {"",    "0",     "1",    "2",    "4",   "26",   "34",    "-1",      "2147483647", "-2147483648",
           "8",   "7",     "true", "mm",   "cm",  "left", "right", "red",     "Red",        "blue",
           "0.8", "1e300", "book", "card", "x;y", "a,b",  "ALB9",  "ALB9_40", "fullcover",  "normalpage"};
    const int index = input->takeIndex(static_cast<int>(std::size(VALUES)) + 1);
    return index < static_cast<int>(std::size(VALUES)) ? QString::fromLatin1(VALUES[index])
                                                       : input->takeLine();
}

void setAttribute(Node *node, const QString &name, const QString &value)
{
    for (auto &[attribute, text] : node->attributes) {
        if (attribute == name) {
            text = value;
            return;
        }
    }
    node->attributes.append({name, value});
}

void edit(Node *root, KTFuzz::Bytes *input)
{
    enum Edit { Set, Remove, Double, Drop, Swap, COUNT };
    QVector<Node *> nodes;
    collect(root, &nodes);
    Node *const node = nodes.at(input->takeIndex(KTArithmetic::sizeOf(nodes)));
    const int kind = input->takeIndex(COUNT);
    if (kind == Set) {
        const KTElementRow *const row = KTCatalogueFormat::element(node->name);
        const QStringList names = row ? KTCatalogueFormat::attributeNames(row->kind) : QStringList();
        if (!names.isEmpty()) {
            const QString name = names.at(input->takeIndex(KTArithmetic::sizeOf(names)));
            setAttribute(node, name, takeValue(input));
        }
    } else if (kind == Remove && !node->attributes.isEmpty()) {
        node->attributes.removeAt(input->takeIndex(KTArithmetic::sizeOf(node->attributes)));
    } else if (kind != Remove && !node->children.isEmpty()) {
        const int index = input->takeIndex(KTArithmetic::sizeOf(node->children));
        if (kind == Double)
            node->children.append(Node(node->children.at(index)));
        else if (kind == Drop)
            node->children.removeAt(index);
        else
            std::swap(node->children[index], node->children.first());
    }
}

enum class Order { AsItIs, Reversed };

void write(const Node &node, Order order, QString *text)
{
    *text += u'<' + node.name;
    QVector<QPair<QString, QString>> attributes = node.attributes;
    if (order == Order::Reversed)
        std::reverse(attributes.begin(), attributes.end());
    for (const auto &[name, value] : attributes)
        *text += u' ' + name + QStringLiteral("=\"") + value.toHtmlEscaped() + u'"';
    *text += QStringLiteral(">\n");
    QVector<Node> children = node.children;
    if (order == Order::Reversed && node.name == QLatin1String("catalogue"))
        std::reverse(children.begin(), children.end());
    for (const Node &child : children)
        write(child, order, text);
    *text += QStringLiteral("</%1>\n").arg(node.name);
}

/** A catalogue in memory with its index. */
struct File
{
    explicit File(const Node &root, Order order = Order::AsItIs)
    {
        QString content;
        write(root, order, &content);
        text = content.toUtf8();
        buffer.setData(text);
        KT_REQUIRE(buffer.open(QIODevice::ReadOnly));
        index = std::make_unique<KTCatalogueIndex>(&buffer);
    }
    bool isReadable() const { return index->error().kind == KTCatalogueErrorKind::None; }

    QByteArray text;
    QBuffer buffer;
    std::unique_ptr<KTCatalogueIndex> index;
};

using Differences = QVector<KTDifference>;

Differences compare(const File &older, const File &newer)
{
    Differences all;
    KT_REQUIRE(
        KTCatalogueComparison(older.index.get(), newer.index.get()).run([&](const Differences &differences) {
            all += differences;
        }));
    return all;
}

QSet<int> articles(const Differences &differences)
{
    QSet<int> ids;
    for (const KTDifference &difference : differences)
        ids.insert(difference.articleId);
    return ids;
}

/** Also without the short cut for articles that are written alike. */
void requireSameAsItself(const File &file)
{
    KT_REQUIRE(compare(file, file).isEmpty());
    Differences differences;
    for (int place = 0; place < file.index->size(); ++place) {
        KTCatalogueComparison comparison(file.index.get(), file.index.get());
        KT_REQUIRE(comparison.compare(place, place, &differences) && differences.isEmpty());
    }
}

void requirePlaces(const Differences &differences, const File &older, const File &newer)
{
    for (const KTDifference &difference : differences) {
        const bool isAdded = difference.rule == KTDifferenceRule::ArticleAdded;
        const bool isRemoved = difference.rule == KTDifferenceRule::ArticleRemoved;
        KT_REQUIRE((difference.olderRange.begin.line > 0) != isAdded);
        KT_REQUIRE((difference.newerRange.begin.line > 0) != isRemoved);
        KT_REQUIRE(difference.olderRange.end.offset <= older.text.size());
        KT_REQUIRE(difference.newerRange.end.offset <= newer.text.size());
        KT_REQUIRE(!difference.message.isEmpty() && difference.before != difference.after);
    }
}

/** Each order that breaks is hit by a breaking difference: nothing of that kind is missed. */
void requireBreakingFound(const File &older, const File &newer, const Differences &differences)
{
    const auto source
        = [](const File &file) { return [&file](int articleId) { return file.index->article(articleId); }; };
    KTOrderImpact impact(source(older), source(newer), differences);
    for (int place = 0; place < older.index->size(); ++place) {
        const int articleId = older.index->articleId(place);
        const std::optional<KTArticle> article = older.index->article(articleId);
        QVector<KTSavedOrder> orders {
            {1, articleId, std::nullopt, QString()}
        };
        const KTPageCountOrganization &counts = article->pageCounts();
        for (const int packages : {0, 1, 2, 3, 4})
            orders.append({1, articleId, counts.pagesWithNExtraPackages(packages), QString()});
        for (const KTConfiguredArticleVariant &option : article->options())
            orders.append({1, articleId, std::nullopt, KTVariantsText::mcf(option.toArticleVariants())});
        for (const KTSavedOrder &order : qAsConst(orders)) {
            QVector<qint64> before;
            for (int i = 0; i < differences.size(); ++i)
                before.append(impact.hits(i).value_or(0));
            if (!impact.add(order).isBroken())
                continue;
            bool isFound = false;
            for (int i = 0; i < differences.size(); ++i) {
                const auto kind = KTDifferenceRules::row(differences.at(i).rule).kind;
                isFound = isFound
                    || (kind == KTDifferenceKind::Breaking && impact.hits(i).value_or(0) > before.at(i));
            }
            KT_REQUIRE(isFound);
        }
    }
}

bool hasDistinctNumbers(const Node &root, const File &file)
{
    const auto isArticle = [](const Node &child) { return child.name == QLatin1String("article"); };
    return std::count_if(root.children.begin(), root.children.end(), isArticle) == file.index->size();
}

} // namespace

void KTFuzz::diff(Bytes input)
{
    constexpr int MAX_EDITS = 5;
    Node before = sample();
    for (int edits = input.takeIndex(MAX_EDITS); edits > 0; --edits)
        edit(&before, &input);
    Node after = before;
    for (int edits = input.takeIndex(MAX_EDITS); edits > 0; --edits)
        edit(&after, &input);
    const File older(before);
    const File newer(after);
    // Free texts may hold what no catalogue can.
    if (!older.isReadable() || !newer.isReadable())
        return;
    requireSameAsItself(older);
    const Differences forth = compare(older, newer);
    const Differences back = compare(newer, older);
    KT_REQUIRE(articles(forth) == articles(back));
    requirePlaces(forth, older, newer);
    requireBreakingFound(older, newer, forth);
    if (hasDistinctNumbers(after, newer)) {
        KT_REQUIRE(compare(newer, File(after, Order::Reversed)).isEmpty());
        KT_REQUIRE(articles(compare(older, File(after, Order::Reversed))) == articles(forth));
    }
}
