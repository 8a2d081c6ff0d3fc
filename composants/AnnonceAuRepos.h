#pragma once

#include <QString>
#include <QTimer>

#include <functional>

class QWidget;

namespace Quillet {

// Has a text spoken once it has come to rest: `start` at each change, while somebody still types or clicks.
class AnnonceAuRepos : public QTimer
{
    Q_OBJECT

public:
    AnnonceAuRepos(QWidget *origine, const std::function<QString()> &texte);
};

} // namespace Quillet
