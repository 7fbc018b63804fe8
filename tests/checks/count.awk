# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# Counts the tests in a ctest log (Testing/Temporary/LastTest.log) and prints "PASSED FAILED SKIPPED".
# A test program counts by its own closing figures (GoogleTest, Qt Test), any other as one test. A program that
# ctest calls failed without saying of a failure itself - it crashed, ran too long, or isn't there - counts as
# one failure.

# The log calls a program that couldn't be started passed, but for this line before it.
/^Unable to find executable: / { absent = 1 }
/^[0-9]+\/[0-9]+ Test: / { inside = 1; own = 0; ok = 0; bad = 0; left = 0 }
inside && /^Output:$/ { output = 1 }
inside && /^<end of output>$/ { output = 0 }

output && /^\[  PASSED  \] [0-9]+ tests?\./ { own = 1; ok += $4 }
output && /^\[  FAILED  \] [0-9]+ tests?, listed below:/ { own = 1; bad += $4 }
output && /^\[  SKIPPED \] [0-9]+ tests?, listed below:/ { own = 1; left += $4 }
output && /^Totals: [0-9]+ passed, [0-9]+ failed, [0-9]+ skipped/ { own = 1; ok += $2; bad += $4; left += $6 }

inside && !output && /^Test (Passed|Failed)\.$/ { Close($2 == "Passed." && !absent) }
# Some outcomes have no such line.
inside && !output && /^".*" end time: / { Close(0) }

function Close(isPassed) {
    if (!isPassed && bad == 0)
        bad = 1
    else if (isPassed && !own)
        ok = 1
    passed += ok; failed += bad; skipped += left
    inside = 0; absent = 0
}

END { print passed + 0, failed + (inside ? 1 : 0), skipped + 0 }
