// SPDX-License-Identifier: MIT
// KCC_ObjectState: one editing state at a time, read-only by default.
#include <gtest/gtest.h>

#include "ncappkit/objects/KCC_ObjectState.h"

TEST(KccObjectState, DefaultStateIsReadOnly) {
  const KCC_ObjectState state;

  EXPECT_TRUE(state.IsStateReadOnly());
  EXPECT_EQ(state.GetState(), KCC_ObjectState::eStateReadOnly);
}

TEST(KccObjectState, SetStateDeletedMakesOnlyTheDeletedTestTrue) {
  KCC_ObjectState state;

  state.SetStateDeleted();

  EXPECT_TRUE(state.IsStateDeleted());
  EXPECT_FALSE(state.IsStateReadOnly());
  EXPECT_FALSE(state.IsStateModified());
  EXPECT_FALSE(state.IsStateCreated());
  EXPECT_FALSE(state.IsStateCascade());
}

TEST(KccObjectState, StatesKeepTheirNumericValues) {
  EXPECT_EQ(static_cast<int>(KCC_ObjectState::eStateReadOnly), 0);
  EXPECT_EQ(static_cast<int>(KCC_ObjectState::eStateModified), 1);
  EXPECT_EQ(static_cast<int>(KCC_ObjectState::eStateCreated), 2);
  EXPECT_EQ(static_cast<int>(KCC_ObjectState::eStateCascade), 3);
  EXPECT_EQ(static_cast<int>(KCC_ObjectState::eStateDeleted), 4);
  EXPECT_EQ(sizeof(KCC_ObjectState::eState), 4u);
}

TEST(KccObjectState, ConstructorTakesTheState) {
  const KCC_ObjectState state(KCC_ObjectState::eStateCascade);

  EXPECT_TRUE(state.IsStateCascade());
}

TEST(KccObjectState, SettingAStateReplacesThePreviousOne) {
  KCC_ObjectState state;
  state.SetStateModified();

  state.SetStateCreated();

  EXPECT_TRUE(state.IsStateCreated());
  EXPECT_FALSE(state.IsStateModified());
}

TEST(KccObjectState, SetStateStoresAValueOutsideTheNamedStates) {
  KCC_ObjectState state;

  state.SetState(static_cast<KCC_ObjectState::eState>(7));

  EXPECT_EQ(static_cast<int>(state.GetState()), 7);
  EXPECT_FALSE(state.IsStateReadOnly());
  EXPECT_FALSE(state.IsStateDeleted());
}

TEST(KccObjectState, CopyKeepsTheState) {
  KCC_ObjectState state(KCC_ObjectState::eStateModified);

  const KCC_ObjectState copy(state);
  state.SetStateReadOnly();

  EXPECT_TRUE(copy.IsStateModified());
}
