// SPDX-License-Identifier: MIT
#include "forms/ControlArray.h"
#include "forms/TextBox.h"
#include "forms/ptrArray.h"
#include "tests/support/TestWindow.h"

#include <QtTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class ptrArrayTest : public WindowTest {
 protected:
  ui::TextBox& Box(int index) {
    if (index == 0) return m_boxes[0];
    ui::TextBox& box = m_boxes.Load(index);
    box.setGeometry(10, 25 * index, 100, 20);
    return box;
  }
  /// Enters new boxes on a page and shows them.
  void Fill(int page, const QList<int>& indexes) {
    for (const int index : indexes) m_array.Add(page, Box(index));
    m_array.Show(page);
  }
  ui::ControlArray<ui::TextBox> m_boxes{&m_window, u"TextIn"_s};
  ptrArray m_array;
};

TEST_F(ptrArrayTest, Pages_FromTheStart_AreTenAndEmpty) {
  EXPECT_EQ(m_array.Pages().size(), 10U);
  EXPECT_EQ(m_array.GetCount(), 0);
  EXPECT_EQ(m_array.Count(), 0);
}

TEST_F(ptrArrayTest, Add_ToAPage_KeepsTheOrderAndTheKeys) {
  m_array.Add(2, Box(5));
  m_array.Add(2, Box(3));
  const ElementPage& page = m_array.Pages()[1];
  ASSERT_EQ(page.Count(), 2);
  EXPECT_EQ(page.At(0).Index(), 5);
  EXPECT_EQ(page.At(1).Index(), 3);
  EXPECT_EQ(page.Find(u"3"_s), &m_boxes[3]);
  EXPECT_EQ(page.Find(u"4"_s), nullptr);
  EXPECT_EQ(m_array.GetNum(2), 2);
  EXPECT_EQ(m_array.Count(), 2);
}

TEST_F(ptrArrayTest, Add_Page11_CountsButHoldsNothing) {
  m_array.Add(11, Box(1));
  m_array.Add(0, Box(2));
  EXPECT_EQ(m_array.GetCount(), 0);
  EXPECT_EQ(m_array.Count(), 2);
}

TEST_F(ptrArrayTest, Add_SameElementNumberTwiceOnAPage_Fails) {
  m_array.Add(1, Box(4));
  EXPECT_THROW(m_array.Add(1, m_boxes[4]), std::logic_error);
  EXPECT_EQ(m_array.GetNum(1), 1);
  EXPECT_EQ(m_array.Count(), 1);
  EXPECT_NO_THROW(m_array.Add(2, m_boxes[4]));
}

TEST_F(ptrArrayTest, HideAll_OverAllPages_HidesEveryControl) {
  Fill(1, {0, 1});
  Fill(10, {2});
  m_array.HideAll();
  for (const int index : {0, 1, 2}) EXPECT_FALSE(m_boxes[index].Visible());
}

TEST_F(ptrArrayTest, Show_APage_LeavesTheOthersAsTheyAre) {
  Fill(1, {1});
  m_array.Add(2, Box(2));
  m_array.Add(3, Box(3));
  m_array.Show(2);
  EXPECT_TRUE(m_boxes[1].Visible());
  EXPECT_TRUE(m_boxes[2].Visible());
  EXPECT_FALSE(m_boxes[3].Visible());
}

TEST_F(ptrArrayTest, Show_EmptyOrAbsentPage_DoesNothing) {
  m_array.Add(1, Box(1));
  m_array.Show(2);
  m_array.Show(0);
  m_array.Show(11);
  EXPECT_FALSE(m_boxes[1].Visible());
}

TEST_F(ptrArrayTest, DecCount_AtZero_StaysThere) {
  m_array.AddCount();
  m_array.AddCount();
  m_array.DecCount();
  EXPECT_EQ(m_array.Count(), 1);
  m_array.DecCount();
  m_array.DecCount();
  EXPECT_EQ(m_array.Count(), 0);
}

TEST_F(ptrArrayTest, Remove_FromAPage_UnloadsItsLastControl) {
  Fill(1, {0, 1, 2});
  m_array.Remove(1);
  EXPECT_FALSE(m_boxes.Has(2));
  EXPECT_TRUE(m_boxes.Has(1));
  EXPECT_EQ(m_array.GetNum(1), 2);
  EXPECT_EQ(m_array.Count(), 2);
}

TEST_F(ptrArrayTest, Remove_EmptyOrAbsentPage_DoesNothing) {
  Fill(1, {1});
  m_array.Remove(2);
  m_array.Remove(11);
  EXPECT_EQ(m_array.GetCount(), 1);
  EXPECT_EQ(m_array.Count(), 1);
}

TEST_F(ptrArrayTest, GetNum_AbsentPage_IsZero) {
  EXPECT_EQ(m_array.GetNum(0), 0);
  EXPECT_EQ(m_array.GetNum(11), 0);
}

TEST_F(ptrArrayTest, GetCount_AfterAddCount_CountsTheControlsOnly) {
  Fill(1, {1, 2});
  Fill(7, {3});
  m_array.AddCount();
  EXPECT_EQ(m_array.GetCount(), 3);
  EXPECT_EQ(m_array.Count(), 4);
}

TEST_F(ptrArrayTest, SetNext_InsideThePage_GoesToTheOneAfter) {
  Fill(1, {0, 3, 7});
  Show();
  m_array.SetNext(0, 1);
  EXPECT_TRUE(m_boxes[3].hasFocus());
  m_array.SetNext(3, 1);
  EXPECT_TRUE(m_boxes[7].hasFocus());
}

TEST_F(ptrArrayTest, SetNext_FromTheLast_GoesToTheFirst) {
  Fill(1, {2, 3});
  Show();
  m_array.SetNext(3, 1);
  EXPECT_TRUE(m_boxes[2].hasFocus());
}

TEST_F(ptrArrayTest, SetNext_NumberNotOnThePage_GoesToTheFirst) {
  Fill(1, {2, 3});
  Show();
  m_boxes[3].SetFocus();
  m_array.SetNext(99, 1);
  EXPECT_TRUE(m_boxes[2].hasFocus());
}

TEST_F(ptrArrayTest, SetNext_EmptyOrAbsentPage_MovesNothing) {
  Fill(1, {2, 3});
  Show();
  m_boxes[3].SetFocus();
  m_array.SetNext(3, 4);
  m_array.SetNext(3, 11);
  EXPECT_TRUE(m_boxes[3].hasFocus());
}

TEST_F(ptrArrayTest, SetPrev_InsideThePage_GoesForwardToo) {
  Fill(1, {1, 2, 3});
  Show();
  m_array.SetPrev(2, 1);
  EXPECT_TRUE(m_boxes[3].hasFocus());
  m_array.SetPrev(3, 1);
  EXPECT_TRUE(m_boxes[1].hasFocus());
}

TEST_F(ptrArrayTest, SetFirst_OfAPage_GoesToItsFirst) {
  Fill(1, {4, 2});
  Show();
  m_array.SetFirst(1);
  EXPECT_TRUE(m_boxes[4].hasFocus());
  m_array.SetFirst(2);
  m_array.SetFirst(0);
  EXPECT_TRUE(m_boxes[4].hasFocus());
}

TEST_F(ptrArrayTest, ClearAll_WithElement0_UnloadsAllTheOthers) {
  Fill(1, {0, 1, 2});
  Fill(3, {5});
  m_array.ClearAll();
  EXPECT_EQ(m_boxes.Count(), 1);
  EXPECT_EQ(m_array.GetCount(), 1);
  EXPECT_EQ(&m_array.Pages()[0].At(0), &m_boxes[0]);
  EXPECT_EQ(m_array.Count(), 0);
}

TEST_F(ptrArrayTest, ClearAll_ThenAddAgain_StartsAnew) {
  Fill(1, {1});
  m_array.ClearAll();
  Fill(1, {1});
  EXPECT_EQ(m_array.GetNum(1), 1);
  EXPECT_EQ(m_array.Count(), 1);
}

TEST_F(ptrArrayTest, PageRemove_ByKey_TakesOutWithoutUnloading) {
  Fill(1, {1, 2});
  m_array.Pages()[0].Remove(u"1"_s);
  m_array.Pages()[0].Remove(u"9"_s);
  EXPECT_TRUE(m_boxes.Has(1));
  EXPECT_EQ(m_array.GetNum(1), 1);
  EXPECT_EQ(m_array.Count(), 2);
}

}  // namespace
}  // namespace velmora
