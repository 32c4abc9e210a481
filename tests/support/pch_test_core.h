// SPDX-License-Identifier: MIT
#pragma once

#include "cmake/pch_core.h"

#include <QtTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
