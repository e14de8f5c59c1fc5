#include "decode/frmLineInputMsg.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "shell/ApplicationDecoder.h"
#include "ui/UiTest.h"

namespace zg::test {
namespace {

class LineInputMsg : public UiTest {
 protected:
  LineInputMsg() : UiTest(false) {}

  std::string DataFile() const { return Folder.Path() + "LineInputMsg.Dat"; }

  // Shows the window modally, as the command does, and acts on it until it closes.
  void Exec(const std::function<void(QWidget&)>& act) {
    OnModal("frmLineInputMsg", [act](QWidget& form) {
      EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
      act(form);
      EXPECT_TRUE(form.isHidden());
      form.close();
    });
    frmLineInputMsg(App, nullptr).exec();
  }

  static void Type(QWidget& form, const QString& text) {
    auto& txtMsg = Find<QPlainTextEdit>(form, "txtMsg");
    txtMsg.clear();
    for (const QChar c : text) {
      if (c == u'\n') {
        QTest::keyClick(&txtMsg, Qt::Key_Return);
      } else {
        QTest::keyClicks(&txtMsg, c);
      }
    }
  }

  static void Click(QWidget& form, const char* button) {
    QTest::mouseClick(&Find<QPushButton>(form, button), Qt::LeftButton);
  }
};

TEST_F(LineInputMsg, BothLanguages) {
  struct Row {
    std::uint8_t language;
    const char* caption;
    const char* prompt;
    const char* decode;
    const char* clear;
  };
  const Row rows[] = {
      {1, "Input Line Message Decoding", "Typing the message to Decode.", "&Decode", "&Clear"},
      {0, "Decodifica Messaggio in Linea", "Inserire il Messaggio da Decodificare.", "&Decodifica",
       "&Svuota"}};
  frmLineInputMsg form(App, nullptr);
  for (const Row& row : rows) {
    App.Texts.SetLanguage(row.language);
    form.ReadLabels();
    EXPECT_EQ(form.windowTitle(), QString(row.caption));
    EXPECT_EQ(Find<QLabel>(form, "lblPrompt").text(), QString(row.prompt));
    EXPECT_EQ(Find<QPushButton>(form, "cmdDecode").text(), QString(row.decode));
    EXPECT_EQ(Find<QPushButton>(form, "cmdClear").text(), QString(row.clear));
  }
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(LineInputMsg, DecodeNormalisesAndKeeps) {
  Exec([](QWidget& form) {
    Type(form, "metar  lirf 201250z\n24012kt");
    Click(form, "cmdDecode");
  });
  EXPECT_EQ(App.mLineInputMsg, "metar lirf 201250z 24012kt =");
  EXPECT_EQ(ReadTestFile(DataFile()), "metar  lirf 201250z\n24012kt =\n");
}

TEST_F(LineInputMsg, TextBehindTheEqualsSignIsLost) {
  Exec([](QWidget& form) {
    Type(form, "TAF LIRF=XYZ");
    Click(form, "cmdDecode");
  });
  EXPECT_EQ(App.mLineInputMsg, "TAF LIRF=X");
  EXPECT_EQ(ReadTestFile(DataFile()), "TAF LIRF=X\n");
}

TEST_F(LineInputMsg, EnterIsForTheTextAndCtrlEnterDecodes) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    App.mLineInputMsg.clear();
    Exec([key](QWidget& form) {
      Type(form, "METAR\nLIRF=");
      EXPECT_TRUE(form.isVisible());
      QTest::keyClick(&Find<QPlainTextEdit>(form, "txtMsg"), key, Qt::ControlModifier);
    });
    EXPECT_EQ(App.mLineInputMsg, "METAR LIRF=");
  }
}

TEST_F(LineInputMsg, BeginsWithTheLastMessageInUpperCase) {
  WriteTestFile(DataFile(), "metar lirf\r\n201250z=");
  Exec([](QWidget& form) {
    EXPECT_EQ(Find<QPlainTextEdit>(form, "txtMsg").toPlainText(), "METAR LIRF\n201250Z=\n");
    Click(form, "cmdDecode");
  });
  EXPECT_EQ(App.mLineInputMsg, "METAR LIRF 201250Z= ");
  EXPECT_EQ(ReadTestFile(DataFile()), "METAR LIRF\n201250Z=\n");
}

TEST_F(LineInputMsg, ClearRemovesTextAndFile) {
  WriteTestFile(DataFile(), "METAR LIRF=\n");
  Exec([this](QWidget& form) {
    Click(form, "cmdClear");
    EXPECT_EQ(Find<QPlainTextEdit>(form, "txtMsg").toPlainText(), "");
    EXPECT_FALSE(std::filesystem::exists(DataFile()));
    EXPECT_TRUE(Find<QPlainTextEdit>(form, "txtMsg").hasFocus());
    Click(form, "cmdClear");  // with no file there is nothing to remove
    QTest::keyClick(&form, Qt::Key_Escape);
  });
  EXPECT_EQ(App.mLineInputMsg, "");
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(LineInputMsg, AnEmptyTextStaysEmpty) {
  WriteTestFile(DataFile(), "METAR LIRF=\n");
  Exec([](QWidget& form) {
    Find<QPlainTextEdit>(form, "txtMsg").clear();
    Click(form, "cmdDecode");
  });
  EXPECT_EQ(App.mLineInputMsg, "");
  EXPECT_EQ(ReadTestFile(DataFile()), "");
}

TEST_F(LineInputMsg, LeavingChangesNothing) {
  WriteTestFile(DataFile(), "METAR LIRF=\n");
  for (const bool byKey : {true, false}) {
    Exec([byKey](QWidget& form) {
      Type(form, "TAF=");
      if (byKey) {
        QTest::keyClick(&form, Qt::Key_Escape);
      } else {
        Click(form, "cmdCancel");
      }
    });
    EXPECT_EQ(App.mLineInputMsg, "");
    EXPECT_EQ(ReadTestFile(DataFile()), "METAR LIRF=\n");
  }
}

TEST_F(LineInputMsg, AFileThatCannotBeWrittenIsToldAndTheMessageDecoded) {
  std::filesystem::create_directory(DataFile());
  WriteTestFile(DataFile() + "/inside", "");
  Exec([](QWidget& form) {
    Type(form, "METAR LIRF=");
    Click(form, "cmdDecode");
  });
  EXPECT_EQ(App.mLineInputMsg, "METAR LIRF=");
  ASSERT_EQ(Messages.Boxes.size(), 2U) << "at loading and at saving";
  EXPECT_EQ(Messages.Boxes[1].icon, Prompt::Icon::Critical);
}

TEST_F(LineInputMsg, TabGoesOnFromTheText) {
  frmLineInputMsg form(App, nullptr);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  auto& txtMsg = Find<QPlainTextEdit>(form, "txtMsg");
  txtMsg.setFocus();
  for (const char* next : {"cmdClear", "cmdDecode", "cmdCancel", "txtMsg"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QString(next));
  }
}

}  // namespace
}  // namespace zg::test
