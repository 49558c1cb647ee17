#include "KTSavedOrders.h"

#include "KTCatalogueText.h"

#include <QByteArray>
#include <QIODevice>
#include <QStringList>

namespace {

constexpr char COMMENT = '#';
constexpr char FIELD_SEPARATOR = '\t';
constexpr char BYTE_ORDER_MARK[] = "\xef\xbb\xbf";
constexpr int MAX_FIELDS = 3;

} // namespace

KTSavedOrders::Item KTSavedOrders::next(KTSavedOrder *order)
{
    // One byte for the end of the line, one for that of the text.
    constexpr int BUFFER_SIZE = MAX_LINE_LENGTH + 2;
    myBuffer.resize(BUFFER_SIZE);
    while (true) {
        const qint64 length = myDevice->readLine(myBuffer.data(), BUFFER_SIZE);
        if (length <= 0) {
            // A device at its end may say so with an error code as well.
            if (length == 0 || myDevice->atEnd())
                return Item::End;
            myError = KTCatalogueText::tr("the file cannot be read: %1").arg(myDevice->errorString());
            return Item::Error;
        }
        order->line = ++myLine;
        const char last = myBuffer.at(static_cast<int>(length) - 1);
        if (length == BUFFER_SIZE - 1 && last != '\n') {
            skipRest(last);
            myError = KTCatalogueText::tr("the line has more than %1 bytes").arg(MAX_LINE_LENGTH);
            return Item::Malformed;
        }
        QByteArray line = QByteArray::fromRawData(myBuffer.constData(), static_cast<int>(length));
        if (myLine == 1 && line.startsWith(BYTE_ORDER_MARK))
            line = line.mid(sizeof BYTE_ORDER_MARK - 1);
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        if (!line.trimmed().isEmpty() && !line.startsWith(COMMENT))
            return parse(line, order);
    }
}

KTSavedOrders::Item KTSavedOrders::parse(const QByteArray &line, KTSavedOrder *order)
{
    const QList<QByteArray> fields = line.split(FIELD_SEPARATOR);
    if (fields.size() > MAX_FIELDS) {
        myError = KTCatalogueText::tr("more than article, page count and MCF");
        return Item::Malformed;
    }
    bool ok = false;
    order->articleId = fields.constFirst().toInt(&ok);
    if (!ok) {
        myError = KTCatalogueText::tr("the article is no number");
        return Item::Malformed;
    }
    order->pages.reset();
    if (!fields.value(1).trimmed().isEmpty()) {
        order->pages = fields.at(1).toInt(&ok);
        if (!ok) {
            myError = KTCatalogueText::tr("the page count is no number");
            return Item::Malformed;
        }
    }
    order->mcf = QString::fromUtf8(fields.value(2));
    if (order->mcf.contains(QChar::ReplacementCharacter) && order->mcf.toUtf8() != fields.value(2)) {
        myError = KTCatalogueText::tr("the MCF is not UTF-8");
        return Item::Malformed;
    }
    return Item::Order;
}

/** Of a line whose begin, up to the byte, was read; its rest is not kept. */
void KTSavedOrders::skipRest(char last)
{
    while (last != '\n') {
        const qint64 length = myDevice->readLine(myBuffer.data(), myBuffer.size());
        if (length <= 0)
            return;
        last = myBuffer.at(static_cast<int>(length) - 1);
    }
}
