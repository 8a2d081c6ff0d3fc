#pragma once

#include "documents/ReponseType.h"

#include <QTextEdit>

#include <optional>

namespace Quillet {

// The message as the buyer will read it: to be read, selected and copied, not edited.
class ApercuMessage : public QTextEdit
{
    Q_OBJECT

public:
    explicit ApercuMessage(QWidget *parent = nullptr);
    // No recipient, no line for one.
    void montrer(const ReponseType &reponse, const QString &destinataire);

protected:
    bool event(QEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;

private:
    void ecrire();

    std::optional<ReponseType> reponse_;
    QString destinataire_;
};

} // namespace Quillet
