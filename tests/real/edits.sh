#!/usr/bin/env bash
# Changes each value and chat line of the free game's bots one at a time, in
# place: tests/inplace/real_bots_test.cpp does so with a sample. Exit status 77
# when the data is not installed.
source "$(dirname "${BASH_SOURCE[0]}")/set_up.sh"

need_installed openarena-081-misc openarena-088-data

cmake --build "$build" --target test_inplace >/dev/null
FRAGSMITH_ALL_EDITS=1 "$build/tests/test_inplace" --gtest_filter='RealBots.*'
