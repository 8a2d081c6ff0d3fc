#pragma once

#include <QScrollArea>

// A page that scrolls downward only, as wide as its place.
class Defilement : public QScrollArea
{
    Q_OBJECT

public:
    explicit Defilement(QWidget *parent = nullptr);
};
