#include "ui/commun/LecteurDEcran.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<QLatin1String, QAccessible::Role>, 7> roles{{
    {QLatin1String("Alerte"), QAccessible::Notification},
    {QLatin1String("CarteFamille"), QAccessible::Grouping},
    {QLatin1String("CarteLivre"), QAccessible::Grouping},
    {QLatin1String("ChoixSegmente"), QAccessible::Grouping},
    {QLatin1String("Formulaire::Section"), QAccessible::Grouping},
    {QLatin1String("PageAuClavier"), QAccessible::Document},
    {QLatin1String("SelecteurQuantite"), QAccessible::Grouping},
}};

// A group without a name of its own is called by its tooltip.
class Ensemble : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text texte) const override
    {
        const QString nom = widget()->accessibleName();
        if (texte == QAccessible::Name)
            return nom.isEmpty() ? widget()->toolTip() : nom;
        return texte == QAccessible::Description ? widget()->accessibleDescription() : QAccessibleWidget::text(texte);
    }
};

QAccessibleInterface *interfaceDe(const QString &classe, QObject *objet)
{
    for (const auto &[nom, role] : roles)
        if (classe == nom && objet->isWidgetType())
            return new Ensemble(static_cast<QWidget *>(objet), role); // Qt owns it
    return nullptr;
}

} // namespace

void LecteurDEcran::preparer()
{
    QAccessible::installFactory(interfaceDe);
}
