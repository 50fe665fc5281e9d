// The headers that nearly every test reads, compiled once.
#include "controls/formsPrecompiled.h"
#include <QComboBox>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
