// What every test of a window includes; compiled once.
#pragma once
#include <gtest/gtest.h>

#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
