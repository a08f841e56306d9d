// ZORBWord of the built library over the recording word processor, as each test of this folder drives it.
#pragma once

#include "support/control_test.h"
#include "support/fake_word.h"

using WordTest = WordProcessorTest<FakeWord, 0>;
