#pragma once

#include <QTest>

#include <initializer_list>
#include <tuple>

namespace Quillet {

// What a rule is tried with, row by row, each headed by its name.
template <typename... Colonnes>
using Rangees = std::initializer_list<std::tuple<const char *, Colonnes...>>;

// Says which row a test failed on first: Qt tells that a test has failed, not how often.
class Rangee
{
public:
    explicit Rangee(const char *nom) : nom_(*nom ? nom : "(rien)") {}
    ~Rangee()
    {
        if (QTest::currentTestFailed() && !avant_)
            qWarning("à la rangée « %s »", nom_);
    }
    Q_DISABLE_COPY_MOVE(Rangee)

private:
    const char *nom_;
    bool avant_ = QTest::currentTestFailed();
};

} // namespace Quillet
