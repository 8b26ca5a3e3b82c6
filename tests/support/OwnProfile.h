// A profile of a suite's own. A process reads its profile once, so such a suite needs a process of its own.
#pragma once

// For SetUpTestSuite: the substitutes read this text at their first question, unless another suite had them
// ask one.
void UseOwnProfile(const char* text);

// False, and then its expectations mean nothing, when other suites run in this process too.
bool IsOnlySuite();
