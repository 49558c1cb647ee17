#include "KTConfiguredArticleVariant.h"

#include <KTNamedColor.h>
#include <KTSpotColor.h>
#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>

namespace {

constexpr KTStringLiteral KEY_ATTRIBUTE = "key";
constexpr KTStringLiteral KEY_NAME_ATTRIBUTE = "key_name";
constexpr KTStringLiteral VALUE_ATTRIBUTE = "value";
constexpr KTStringLiteral VALUE_NAME_ATTRIBUTE = "value_name";
constexpr KTStringLiteral EDITOR_NAME_ATTRIBUTE = "editor_name";
constexpr KTStringLiteral NAME_ATTRIBUTE = "name";
constexpr KTStringLiteral PREVIEW_ATTRIBUTE = "preview";
constexpr KTStringLiteral COLOR_ATTRIBUTE = "color";
constexpr KTStringLiteral PRESELECTED_ATTRIBUTE = "preselected";
constexpr KTStringLiteral NOT_ACCOUNTABLE_ATTRIBUTE = "not_accountable";

constexpr QChar KEY_VALUE_SEPARATOR = u':';

QString text(const KTXMLElement &element, const QString &name)
{
    return KTXMLParser::attribute(element, name, QString(), true);
}

QColor namedColor(const QString &name)
{
    QColor color;
    if (!name.isEmpty())
        color.setNamedColor(name);
    return color;
}

} // namespace

class KTConfiguredArticleVariantImpl : public QSharedData
{
public:
    QString key;
    QString keyName;
    QString value;
    QString valueName;
    QString editorName;
    // Read and kept, though nobody asks for it yet.
    QString name;
    QString preview;
    QColor color;
    bool preselected = true;
    bool notAccountable = false;
};

KTConfiguredArticleVariant::KTConfiguredArticleVariant()
    : myImpl(new KTConfiguredArticleVariantImpl)
{
}

KTConfiguredArticleVariant::KTConfiguredArticleVariant(const QDomElement &element)
    : KTConfiguredArticleVariant(KTXMLElement(element))
{
}

KTConfiguredArticleVariant::KTConfiguredArticleVariant(const KTXMLElement &element)
    : KTConfiguredArticleVariant()
{
    KTConfiguredArticleVariantImpl *const impl = myImpl.data();
    impl->key = text(element, KEY_ATTRIBUTE);
    impl->keyName = text(element, KEY_NAME_ATTRIBUTE);
    impl->value = text(element, VALUE_ATTRIBUTE);
    impl->valueName = text(element, VALUE_NAME_ATTRIBUTE);
    impl->editorName = text(element, EDITOR_NAME_ATTRIBUTE);
    impl->name = text(element, NAME_ATTRIBUTE);
    impl->preview = text(element, PREVIEW_ATTRIBUTE);
    impl->preselected = KTXMLParser::boolAttribute(element, PRESELECTED_ATTRIBUTE, false);
    impl->notAccountable = KTXMLParser::boolAttribute(element, NOT_ACCOUNTABLE_ATTRIBUTE, false);
    impl->color = namedColor(text(element, COLOR_ATTRIBUTE));
}

KTConfiguredArticleVariant::KTConfiguredArticleVariant(const QString &key, const QString &value)
    : KTConfiguredArticleVariant()
{
    myImpl->key = key;
    myImpl->value = value;
}

KTConfiguredArticleVariant::KTConfiguredArticleVariant(const QString &keywordString)
    : KTConfiguredArticleVariant()
{
    const KTSize separator = keywordString.indexOf(KEY_VALUE_SEPARATOR);
    if (separator < 0 || keywordString.indexOf(KEY_VALUE_SEPARATOR, separator + 1) >= 0)
        return;
    myImpl->key = keywordString.left(separator);
    myImpl->value = keywordString.mid(separator + 1);
}

KTConfiguredArticleVariant::KTConfiguredArticleVariant(const KTConfiguredArticleVariant &other) = default;
KTConfiguredArticleVariant::KTConfiguredArticleVariant(KTConfiguredArticleVariant &&other) noexcept = default;
KTConfiguredArticleVariant &KTConfiguredArticleVariant::operator=(const KTConfiguredArticleVariant &other)
    = default;
KTConfiguredArticleVariant &
KTConfiguredArticleVariant::operator=(KTConfiguredArticleVariant &&other) noexcept = default;
KTConfiguredArticleVariant::~KTConfiguredArticleVariant() = default;

QString KTConfiguredArticleVariant::key() const
{
    return myImpl->key;
}

QString KTConfiguredArticleVariant::value() const
{
    return myImpl->value;
}

QString KTConfiguredArticleVariant::keyName() const
{
    return myImpl->keyName;
}

QString KTConfiguredArticleVariant::visibleName() const
{
    return isValid() ? myImpl->valueName : QString();
}

QString KTConfiguredArticleVariant::editorName() const
{
    return myImpl->editorName;
}

QString KTConfiguredArticleVariant::preview() const
{
    return myImpl->preview;
}

QColor KTConfiguredArticleVariant::color() const
{
    return myImpl->color;
}

bool KTConfiguredArticleVariant::isDefault() const
{
    return myImpl->preselected;
}

bool KTConfiguredArticleVariant::isNotAccountable() const
{
    return myImpl->notAccountable;
}

bool KTConfiguredArticleVariant::isValid() const
{
    return !myImpl->key.isEmpty() && !myImpl->value.isEmpty();
}

bool KTConfiguredArticleVariant::isSpotColor(const KTSpotColor &spot) const
{
    return myImpl->value == spot.encode();
}

QString KTConfiguredArticleVariant::describe() const
{
    if (myImpl->keyName.isEmpty())
        return QString();
    const QString html
        = myImpl->color.isValid() ? KTNamedColor::renderColorPreviewHTML(myImpl->color) : QString();
    return QStringLiteral("%1: %2 %3").arg(myImpl->keyName, html, myImpl->valueName).simplified();
}

QString KTConfiguredArticleVariant::toString() const
{
    return isValid() ? QStringLiteral("%1:%2").arg(myImpl->key, myImpl->value) : QString();
}

KTArticleVariants KTConfiguredArticleVariant::toArticleVariants() const
{
    return KTArticleVariants(myImpl->key, myImpl->value);
}

void KTConfiguredArticleVariant::merge(const KTConfiguredArticleVariant &other)
{
    myImpl->preview = other.myImpl->preview;
    myImpl->color = other.myImpl->color;
}

bool KTConfiguredArticleVariant::operator==(const KTConfiguredArticleVariant &other) const
{
    return myImpl == other.myImpl
        || (myImpl->key == other.myImpl->key && myImpl->value == other.myImpl->value);
}

bool KTConfiguredArticleVariant::operator<(const KTConfiguredArticleVariant &other) const
{
    return myImpl != other.myImpl && myImpl->keyName < other.myImpl->keyName;
}

KTHashValue qHash(const KTConfiguredArticleVariant &variant, KTHashValue seed)
{
    return qHash(qMakePair(variant.key(), variant.value()), seed);
}

QDebug operator<<(QDebug stream, const KTConfiguredArticleVariant &variant)
{
    return stream << QStringLiteral("KTConfiguredArticleVariant: key: %1 value: %2 ")
                         .arg(variant.key(), variant.value());
}
