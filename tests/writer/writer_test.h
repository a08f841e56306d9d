// OpenWriter of the built library over the recording suite, as each test of this folder drives it.
#pragma once

#include "support/control_test.h"
#include "support/fake_suite.h"

using Microsoft::WRL::ComPtr;
using WriterTest = WordProcessorTest<FakeSuite, 2>;
