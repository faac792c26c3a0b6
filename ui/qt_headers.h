// What nearly every window includes anyway; compiled once.
#pragma once
#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>
#include <functional>
#include <string>
#include <vector>
