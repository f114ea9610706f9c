// The toolkit's application object must stand before the first test and outlive the last.

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/desktop_program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  pawnfield::PrepareApplication();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
