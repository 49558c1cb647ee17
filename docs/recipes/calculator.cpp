#include <KTProductBase>

#include <QTextStream>

//! [calculator]
class BookCalculator : public KTPageOrganizationCalculator
{
public:
    KTPageCountOrganization calculate(const KTProductType &type) const override
    {
        return type.isCalendar() ? KTPageCountOrganization({13, 13}, 0)
                                 : KTPageCountOrganization({26, 154}, 2);
    }
};
//! [calculator]

int main()
{
    QTextStream out(stdout);
    //! [manager]
    KTPageOrganizationManager *manager = KTPageOrganizationManager::instance();
    manager->setCalculator(new BookCalculator); // once, at start-up; the manager owns it
    out << manager->organization(QStringLiteral("ALB9_30"))->dump() << '\n'
        << manager->organization(QStringLiteral("CAL12"))->dump() << '\n';
    //! [manager]
}
