#pragma once

#include <QTextEdit>

struct ReponseType;

// The message as the buyer will read it: to be read, selected and copied, not edited.
class ApercuMessage : public QTextEdit
{
    Q_OBJECT

public:
    explicit ApercuMessage(QWidget *parent = nullptr);
    // No recipient line for an empty address.
    void montrer(const ReponseType &reponse, const QString &adresse);

protected:
    bool event(QEvent *evenement) override;
};
