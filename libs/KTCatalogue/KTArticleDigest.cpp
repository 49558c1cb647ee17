#include "KTArticleDigest.h"

#include <KTXMLFragment.h>

#include <QCryptographicHash>

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

void append(QByteArray *text, int number)
{
    text->append(reinterpret_cast<const char *>(&number), sizeof number);
}

/** With its length, so that no two lists of texts give the same bytes. */
void append(QByteArray *text, QStringView part)
{
    append(text, static_cast<int>(part.size()));
    text->append(reinterpret_cast<const char *>(part.utf16()),
                 static_cast<int>(part.size()) * static_cast<int>(sizeof(QChar)));
}

} // namespace

KTArticleDigest::Digest KTArticleDigest::of(const KTXMLFragment &fragment)
{
    myText.resize(0);
    for (const KTXMLFragment::Element &element : fragment.elements) {
        // The parents say how the elements are nested.
        append(&myText, element.parent);
        append(&myText, fragment.view(element.name));
        append(&myText, element.attributeCount);
        myOrder.resize(element.attributeCount);
        std::iota(myOrder.begin(), myOrder.end(), element.firstAttribute);
        std::sort(myOrder.begin(), myOrder.end(), [&fragment](int first, int second) {
            return fragment.view(fragment.attributes.at(first).name)
                < fragment.view(fragment.attributes.at(second).name);
        });
        for (const int index : qAsConst(myOrder)) {
            append(&myText, fragment.view(fragment.attributes.at(index).name));
            append(&myText, fragment.view(fragment.attributes.at(index).value));
        }
    }
    const QByteArray hash = QCryptographicHash::hash(myText, QCryptographicHash::Md5);
    Digest digest {};
    std::memcpy(digest.data(), hash.constData(), digest.size());
    return digest;
}
