#pragma once

#include "tests/support/PrintQt.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
