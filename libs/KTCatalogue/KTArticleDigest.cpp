#include "KTArticleDigest.h"

#include <KTXMLFragment.h>

#include <string_view>

namespace {

/** An odd number whose bits look random, 2^64 divided by the golden ratio. */
constexpr quint64 FACTOR = 0x9e3779b97f4a7c15;

quint64 mixed(quint64 first, quint64 second)
{
    constexpr int HALF = 32;
    const quint64 product = (first ^ (first >> HALF)) * FACTOR + second;
    return (product ^ (product >> HALF)) * FACTOR;
}

quint64 hashOf(QStringView text)
{
    return std::hash<std::u16string_view>()({text.utf16(), static_cast<std::size_t>(text.size())});
}

} // namespace

quint64 KTArticleDigest::of(const KTXMLFragment &fragment)
{
    quint64 digest = 0;
    for (const KTXMLFragment::Element &element : fragment.elements) {
        // A sum, so that the order of the attributes does not matter.
        quint64 attributes = 0;
        for (int i = 0; i < element.attributeCount; ++i) {
            const KTXMLFragment::Attribute &attribute = fragment.attributes.at(element.firstAttribute + i);
            attributes
                += mixed(hashOf(fragment.view(attribute.name)), hashOf(fragment.view(attribute.value)));
        }
        // The parents say how the elements are nested.
        digest = mixed(digest, static_cast<quint64>(element.parent));
        digest = mixed(digest, hashOf(fragment.view(element.name)));
        digest = mixed(digest, attributes);
    }
    return digest;
}
