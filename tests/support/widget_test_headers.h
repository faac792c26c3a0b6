// What every test of a window includes; compiled once a program, because the tests of Qt differ in
// a definition.
#pragma once
#include <gtest/gtest.h>

#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
