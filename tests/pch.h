#pragma once
#include "../src/pch.h"

#include <gtest/gtest.h>
