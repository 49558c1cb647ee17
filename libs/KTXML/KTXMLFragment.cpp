#include "KTXMLFragment.h"

KTXMLElement KTXMLFragment::element(int index) const
{
    return index >= 0 && index < elements.size() ? KTXMLElement(this, index) : KTXMLElement();
}

void KTXMLFragment::clear()
{
    text.resize(0);
    elements.resize(0);
    attributes.resize(0);
}
