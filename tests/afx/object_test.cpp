// Run-time classes and the exception classes.
#include <gtest/gtest.h>

#include "afx.h"

namespace {

class CShape : public CObject {
  DECLARE_DYNAMIC(CShape)
};
class CCircle : public CShape {
  DECLARE_DYNCREATE(CCircle)
  int m_radius = 3;
};
class COther : public CObject {
  DECLARE_SERIAL(COther)
};
IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
IMPLEMENT_SERIAL(COther, CObject, 1)

TEST(RuntimeClass, ReportsItsBaseClasses) {
  const CCircle circle;
  EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
  EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CShape)));
  EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
  EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(COther)));
  EXPECT_STREQ(circle.GetRuntimeClass()->m_lpszClassName, "CCircle");
}

TEST(RuntimeClass, CreatesOnlyClassesWithDynamicCreation) {
  std::unique_ptr<CObject> made(RUNTIME_CLASS(CCircle)->CreateObject());
  ASSERT_TRUE(made);
  EXPECT_EQ(dynamic_cast<CCircle*>(made.get())->m_radius, 3);
  EXPECT_EQ(RUNTIME_CLASS(CShape)->CreateObject(), nullptr);
}

TEST(RuntimeClass, ASchemaMakesAClassSerial) {
  EXPECT_TRUE(COther().IsSerializable());
  EXPECT_FALSE(CCircle().IsSerializable());
}

TEST(RuntimeClass, DynamicDowncastReturnsNullForAnotherClass) {
  CCircle circle;
  CObject* object = &circle;
  EXPECT_EQ(DYNAMIC_DOWNCAST(CShape, object), &circle);
  EXPECT_EQ(DYNAMIC_DOWNCAST(COther, object), nullptr);
  EXPECT_EQ(DYNAMIC_DOWNCAST(COther, nullptr), nullptr);
}

TEST(Exceptions, AFileExceptionCarriesItsCause) {
  try {
    AfxThrowFileException(CFileException::none, -1, L"a.qmc");
  } catch (CFileException* exception) {
    EXPECT_EQ(exception->m_cause, 0);
    EXPECT_EQ(exception->m_lOsError, -1);
    EXPECT_STREQ(exception->m_strFileName, L"a.qmc");
    exception->Delete();
  }
}

TEST(Exceptions, AllAreCaughtByTheBaseClass) {
  int caught = 0;
  for (void (*raise)() : {&AfxThrowMemoryException, &AfxThrowUserException,
                          &AfxThrowNotSupportedException, &AfxThrowInvalidArgException}) {
    try {
      raise();
    } catch (CException* exception) {
      ++caught;
      exception->Delete();
    }
  }
  EXPECT_EQ(caught, 4);
}

TEST(Exceptions, TheMessageIsTruncatedToTheBuffer) {
  CArchiveException exception(CArchiveException::endOfFile);
  wchar_t text[5];
  EXPECT_TRUE(exception.GetErrorMessage(text, 5));
  EXPECT_STREQ(text, L"CArc");
  EXPECT_FALSE(exception.GetErrorMessage(text, 0));
}

}  // namespace
