#pragma once

#include "composants/bureau/Souhaits.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>

namespace Quillet {

// The bus of this process and of its children, that knows no service but those played on it. To be made before
// anything asks for the session's.
class BusPrive
{
public:
    BusPrive();
    ~BusPrive();
    Q_DISABLE_COPY_MOVE(BusPrive)

private:
    QTemporaryDir dossier_;
    QProcess bus_;
};

// A desktop's portal, as good or as bad as a test wants it.
class FauxPortail : public QDBusVirtualObject
{
    Q_OBJECT

public:
    FauxPortail();
    ~FauxPortail() override;
    Q_DISABLE_COPY_MOVE(FauxPortail)

    QVariant reponse;  // to a question for all settings; not valid: none
    int questions = 0; // heard so far

    void paraitre();
    void disparaitre();
    void annoncer(const QString &espace, const QString &cle, const QVariant &valeur);
    void emettre(const QVariantList &arguments);

    [[nodiscard]] QString introspect(const QString &chemin) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override;

private:
    QDBusConnection bus_;
};

} // namespace Quillet
