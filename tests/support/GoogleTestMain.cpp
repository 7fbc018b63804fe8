// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

namespace {

/// Lets an assertion that fails in a function called by a test end the test too, not that function alone.
class EndingListener : public testing::EmptyTestEventListener {
    void OnTestPartResult(const testing::TestPartResult &result) override
    {
        if (result.type() == testing::TestPartResult::kFatalFailure)
            throw testing::AssertionException(result);
    }
};

} // namespace

int main(int count, char **arguments)
{
    testing::InitGoogleTest(&count, arguments);
    // The last one, since those after it would hear of no such failure.
    testing::UnitTest::GetInstance()->listeners().Append(new EndingListener);
    return RUN_ALL_TESTS();
}
