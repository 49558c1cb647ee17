#include "KTCatalogueReader.h"

namespace {

const QLatin1String CATALOGUE_ELEMENT("catalogue");
const QLatin1String ARTICLE_ELEMENT("article");
const QLatin1String ENCODING("UTF-8");
constexpr int ARTICLE_DEPTH = 2;

} // namespace

KTCatalogueReader::KTCatalogueReader(QIODevice *device)
    : myScanner(device)
    , myReader(&myScanner)
{
    // Names are read as they stand, so that a prefix needs no declaration.
    myReader.setNamespaceProcessing(false);
}

bool KTCatalogueReader::readNext(KTCatalogueArticle *article)
{
    for (;;) {
        switch (nextToken()) {
        case QXmlStreamReader::StartElement:
            if (myDepth == ARTICLE_DEPTH && myReader.qualifiedName() == ARTICLE_ELEMENT)
                return readArticle(article);
            if (myDepth == 1 && myReader.qualifiedName() != CATALOGUE_ELEMENT) {
                fail(QStringLiteral("the root element is '%1', not '%2'")
                         .arg(myReader.qualifiedName().toString(), CATALOGUE_ELEMENT),
                     myTag.tag);
                return false;
            }
            break;
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
        }
    }
}

bool KTCatalogueReader::readArticle(KTCatalogueArticle *article)
{
    article->document = QDomDocument();
    article->tags.clear();
    QDomNode parent;
    for (;;) {
        if (myReader.tokenType() == QXmlStreamReader::StartElement) {
            QDomElement element = article->document.createElement(myReader.qualifiedName().toString());
            for (const QXmlStreamAttribute &attribute : myReader.attributes())
                element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
            parent = (parent.isNull() ? article->document : parent).appendChild(element);
            article->tags.append(myTag);
        } else if (myReader.tokenType() == QXmlStreamReader::EndElement) {
            if (myDepth < ARTICLE_DEPTH)
                return true;
            parent = parent.parentNode();
        }
        if (nextToken() == QXmlStreamReader::Invalid)
            return false;
    }
}

/** The next token, or Invalid when the file is refused. */
QXmlStreamReader::TokenType KTCatalogueReader::nextToken()
{
    if (!myErrorText.isEmpty())
        return QXmlStreamReader::Invalid;
    if (myReader.tokenType() == QXmlStreamReader::EndDocument)
        return QXmlStreamReader::EndDocument;
    switch (myReader.readNext()) {
    case QXmlStreamReader::StartDocument: {
        const QStringRef encoding = myReader.documentEncoding();
        if (!encoding.isEmpty() && encoding.compare(ENCODING, Qt::CaseInsensitive) != 0)
            fail(QStringLiteral("the encoding is '%1', not UTF-8").arg(encoding.toString()),
                 readerPosition());
        break;
    }
    case QXmlStreamReader::StartElement:
        myTag = myScanner.takeTag();
        if (++myDepth > MAXIMUM_DEPTH)
            fail(QStringLiteral("limit exceeded: more than %1 levels of elements").arg(MAXIMUM_DEPTH),
                 myTag.tag);
        break;
    case QXmlStreamReader::EndElement:
        --myDepth;
        break;
    case QXmlStreamReader::Invalid:
        failAsReader();
        break;
    default:
        break;
    }
    return myErrorText.isEmpty() ? myReader.tokenType() : QXmlStreamReader::Invalid;
}

void KTCatalogueReader::fail(const QString &text, const KTFilePosition &position)
{
    myErrorText = text;
    myErrorPosition = position;
}

/** The scanner's reason comes first: what it stops looks truncated to the XML reader. */
void KTCatalogueReader::failAsReader()
{
    if (!myScanner.refusal().isEmpty())
        fail(myScanner.refusal(), myScanner.refusalPosition());
    else if (myScanner.hasReadError())
        fail(QStringLiteral("the file cannot be read"), readerPosition());
    else
        fail(myReader.errorString(), readerPosition());
}

KTFilePosition KTCatalogueReader::readerPosition() const
{
    return {static_cast<int>(myReader.lineNumber()), static_cast<int>(myReader.columnNumber()) + 1};
}
