#include "KTSpineConfig.h"

#include "KTSpineConfigImpl.h"

#include <KTXMLElement.h>

#include <QDebug>

KTSpineConfig::KTSpineConfig()
    : KTSpineConfig(new KTSpineConfigImpl)
{
}

KTSpineConfig::KTSpineConfig(const KTPageCountOrganization &pageOrganization, int packagesPerBlock,
                             const KTDistance &baseWidth, const KTDistance &blockWidth,
                             const KTDistance &additionalWidth)
    : KTSpineConfig(
        new KTSpineConfigImpl(pageOrganization, packagesPerBlock, baseWidth, blockWidth, additionalWidth))
{
}

KTSpineConfig::KTSpineConfig(KTSpineConfigImpl *impl)
    : myImpl(impl)
{
}

KTSpineConfig::KTSpineConfig(const KTSpineConfig &other) = default;
KTSpineConfig::KTSpineConfig(KTSpineConfig &&other) noexcept = default;
KTSpineConfig &KTSpineConfig::operator=(const KTSpineConfig &other) = default;
KTSpineConfig &KTSpineConfig::operator=(KTSpineConfig &&other) noexcept = default;
KTSpineConfig::~KTSpineConfig() = default;

KTSpineConfig KTSpineConfig::createFromProductsXML(const QDomElement &element)
{
    return createFromProductsXML(KTXMLElement(element));
}

KTSpineConfig KTSpineConfig::createFromProductsXML(const KTXMLElement &element)
{
    return KTSpineConfig(new KTSpineConfigImpl(KTSpineConfigImpl::createFromProductsXML(element)));
}

bool KTSpineConfig::isValid() const
{
    return myImpl->isValid();
}

int KTSpineConfig::additionalPagePackageBlocks(unsigned int pages) const
{
    return myImpl->additionalPagePackageBlocks(pages);
}

KTDistance KTSpineConfig::spineWidth(unsigned int pages) const
{
    return myImpl->spineWidth(pages);
}

int KTSpineConfig::spineMaxFontHeigth(unsigned int pages, const QString &fontFamily) const
{
    return myImpl->spineMaxFontHeigth(pages, fontFamily);
}

KTDistance KTSpineConfig::additionalSpineWidth() const
{
    return myImpl->additionalSpineWidth();
}

int KTSpineConfig::coverReduceSize() const
{
    return myImpl->coverReduceSize();
}

QString KTSpineConfig::dump() const
{
    return myImpl->dump();
}

bool KTSpineConfig::operator==(const KTSpineConfig &other) const
{
    return myImpl == other.myImpl || *myImpl == *other.myImpl;
}

QDebug operator<<(QDebug stream, const KTSpineConfig &config)
{
    const QDebugStateSaver saver(stream);
    stream.noquote() << config.dump();
    return stream;
}
