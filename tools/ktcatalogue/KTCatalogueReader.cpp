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
    while (readNextOrOther(article)) {
        if (myIsArticle)
            return true;
    }
    return false;
}

bool KTCatalogueReader::readNextOrOther(KTCatalogueArticle *article)
{
    myIsArticle = false;
    for (;;) {
        switch (nextToken()) {
        case QXmlStreamReader::StartElement:
            if (myDepth == 1 && myReader.qualifiedName() != CATALOGUE_ELEMENT) {
                fail(KTCatalogueErrorKind::NotWellFormed,
                     QStringLiteral("the root element is '%1', not '%2'")
                         .arg(myReader.qualifiedName().toString(), CATALOGUE_ELEMENT),
                     myTag);
                return false;
            }
            if (myDepth > ARTICLE_DEPTH)
                break;
            article->clear();
            if (myDepth == ARTICLE_DEPTH && myReader.qualifiedName() == ARTICLE_ELEMENT)
                return readArticle(article);
            appendElement(article, -1);
            return true;
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
    int parent = -1;
    for (;;) {
        if (myReader.tokenType() == QXmlStreamReader::StartElement) {
            appendElement(article, parent);
            parent = article->elements().size() - 1;
        } else if (myReader.tokenType() == QXmlStreamReader::EndElement) {
            parent = article->elements().at(parent).parent;
            if (parent < 0) {
                myIsArticle = true;
                return true;
            }
        }
        if (nextToken() == QXmlStreamReader::Invalid)
            return false;
    }
}

void KTCatalogueReader::appendElement(KTCatalogueArticle *article, int parent)
{
    article->appendElement(myReader.qualifiedName(), myTag, parent);
    const QXmlStreamAttributes attributes = myReader.attributes();
    for (int i = 0; i < attributes.size(); ++i) {
        article->appendAttribute(attributes.at(i).qualifiedName(), attributes.at(i).value(),
                                 myAttributes.value(i, myTag));
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
            fail(KTCatalogueErrorKind::NotWellFormed,
                 QStringLiteral("the encoding is '%1', not UTF-8").arg(encoding.toString()),
                 readerPosition());
        break;
    }
    case QXmlStreamReader::StartElement:
        myTag = myScanner.takeTag(&myAttributes);
        if (++myDepth > MAXIMUM_DEPTH)
            fail(KTCatalogueErrorKind::LimitExceeded,
                 QStringLiteral("limit exceeded: more than %1 levels of elements").arg(MAXIMUM_DEPTH), myTag);
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

void KTCatalogueReader::fail(KTCatalogueErrorKind kind, const QString &text, const KTFilePosition &position)
{
    myErrorKind = kind;
    myErrorText = text;
    myErrorPosition = position;
}

/** The scanner's reason comes first: what it stops looks truncated to the XML reader. */
void KTCatalogueReader::failAsReader()
{
    if (!myScanner.refusal().isEmpty())
        fail(myScanner.refusalKind(), myScanner.refusal(), myScanner.refusalPosition());
    else if (myScanner.hasReadError())
        fail(KTCatalogueErrorKind::Unreadable, QStringLiteral("the file cannot be read"), readerPosition());
    else
        fail(KTCatalogueErrorKind::NotWellFormed, myReader.errorString(), readerPosition());
}

KTFilePosition KTCatalogueReader::readerPosition() const
{
    return {static_cast<int>(myReader.lineNumber()), static_cast<int>(myReader.columnNumber()) + 1};
}
