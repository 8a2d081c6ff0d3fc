#pragma once

#include <QDate>

#include <functional>

// Where the interface takes the day from: the clock, or the day that a test or the tour fixes.
using Aujourdhui = std::function<QDate()>;
