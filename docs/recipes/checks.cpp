#include <KTProductBase>

#include <QTextStream>

//! [checker]
constexpr auto SHOP = static_cast<KTProductCheckerType>(1);
constexpr auto CART = static_cast<KTProductCheckerType>(2);

class SoldOut : public KTProductChecker
{
public:
    KTProductCheckerType checkerType() override { return SHOP; }
    bool checkProductType(const KTProductType &type) override { return !type.isCalendar(); }
    bool checkBoxStyle(const KTProductType &, const KTArticleVariants &box) override
    {
        return !box.contains(KTArticleVariants(QStringLiteral("boxstyle"), QStringLiteral("wood")));
    }
};
//! [checker]

int main()
{
    QTextStream out(stdout);
    //! [registry]
    SoldOut soldOut;
    KTProductCheckerRegistry *registry = KTProductCheckerRegistry::instance();
    registry->registerChecker(&soldOut);

    const KTProductType calendar(QStringLiteral("CAL12"));
    out << (registry->isValid(calendar, SHOP) ? "in the shop" : "not in the shop") << ", "
        << (registry->isValid(calendar, CART) ? "in the cart" : "not in the cart") << '\n';

    registry->unregisterChecker(&soldOut); // before its owner deletes it
    //! [registry]
}
