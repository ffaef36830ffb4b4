// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The text codec: every text passes between Windows-1252 bytes and the window's characters here.
#include "gui/common/text_codec.h"

#include <QtTest>

namespace vesk::gui::test {

class TextCodecTest : public QObject {
    Q_OBJECT

  private slots:
    void codecReadsWindows1252_data();
    void codecReadsWindows1252();
    void codecWritesEveryByteBackAsItWasRead();
    void codecWritesCharactersOutsideTheCodePageAsQuestionMarks_data();
    void codecWritesCharactersOutsideTheCodePageAsQuestionMarks();
};

void TextCodecTest::codecReadsWindows1252_data() {
    QTest::addColumn<int>("byte");
    QTest::addColumn<uint>("character");
    QTest::newRow("0x41 Latin capital A") << 0x41 << 0x0041U;
    QTest::newRow("0x80 euro sign") << 0x80 << 0x20ACU;
    QTest::newRow("0x82 low single quote") << 0x82 << 0x201AU;
    QTest::newRow("0x83 f with hook") << 0x83 << 0x0192U;
    QTest::newRow("0x84 low double quote") << 0x84 << 0x201EU;
    QTest::newRow("0x85 ellipsis") << 0x85 << 0x2026U;
    QTest::newRow("0x86 dagger") << 0x86 << 0x2020U;
    QTest::newRow("0x87 double dagger") << 0x87 << 0x2021U;
    QTest::newRow("0x88 circumflex") << 0x88 << 0x02C6U;
    QTest::newRow("0x89 per mille") << 0x89 << 0x2030U;
    QTest::newRow("0x8A S caron") << 0x8A << 0x0160U;
    QTest::newRow("0x8B single left angle quote") << 0x8B << 0x2039U;
    QTest::newRow("0x8C OE") << 0x8C << 0x0152U;
    QTest::newRow("0x8E Z caron") << 0x8E << 0x017DU;
    QTest::newRow("0x91 left single quote") << 0x91 << 0x2018U;
    QTest::newRow("0x92 right single quote") << 0x92 << 0x2019U;
    QTest::newRow("0x93 left double quote") << 0x93 << 0x201CU;
    QTest::newRow("0x94 right double quote") << 0x94 << 0x201DU;
    QTest::newRow("0x95 bullet") << 0x95 << 0x2022U;
    QTest::newRow("0x96 en dash") << 0x96 << 0x2013U;
    QTest::newRow("0x97 em dash") << 0x97 << 0x2014U;
    QTest::newRow("0x98 small tilde") << 0x98 << 0x02DCU;
    QTest::newRow("0x99 trade mark") << 0x99 << 0x2122U;
    QTest::newRow("0x9A s caron") << 0x9A << 0x0161U;
    QTest::newRow("0x9B single right angle quote") << 0x9B << 0x203AU;
    QTest::newRow("0x9C oe") << 0x9C << 0x0153U;
    QTest::newRow("0x9E z caron") << 0x9E << 0x017EU;
    QTest::newRow("0x9F Y diaeresis") << 0x9F << 0x0178U;
    QTest::newRow("0x81 unassigned stays a control") << 0x81 << 0x0081U;
    QTest::newRow("0x8D unassigned stays a control") << 0x8D << 0x008DU;
    QTest::newRow("0x8F unassigned stays a control") << 0x8F << 0x008FU;
    QTest::newRow("0x90 unassigned stays a control") << 0x90 << 0x0090U;
    QTest::newRow("0x9D unassigned stays a control") << 0x9D << 0x009DU;
    QTest::newRow("0xA0 no-break space") << 0xA0 << 0x00A0U;
    QTest::newRow("0xB0 degree sign") << 0xB0 << 0x00B0U;
    QTest::newRow("0xE9 e acute") << 0xE9 << 0x00E9U;
    QTest::newRow("0xFF y diaeresis") << 0xFF << 0x00FFU;
}

void TextCodecTest::codecReadsWindows1252() {
    QFETCH(int, byte);
    QFETCH(uint, character);
    const std::string bytes(1, static_cast<char>(byte));
    const QString text = fromWindows1252(bytes);
    QCOMPARE(text.size(), 1);
    QCOMPARE(static_cast<uint>(text.at(0).unicode()), character);
    QCOMPARE(toWindows1252(text), bytes);
}

void TextCodecTest::codecWritesEveryByteBackAsItWasRead() {
    std::string every;
    for (int byte = 0; byte < 256; ++byte) {
        every.push_back(static_cast<char>(byte));
    }
    const QString text = fromWindows1252(every);
    QCOMPARE(text.size(), 256);
    QCOMPARE(toWindows1252(text), every);
    QCOMPARE(fromWindows1252("Caf\xE9 \x80 5"), QStringLiteral(u"Café € 5"));
}

void TextCodecTest::codecWritesCharactersOutsideTheCodePageAsQuestionMarks_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Greek omega") << QStringLiteral(u"\u03A9") << QByteArray("?");
    QTest::newRow("a character beyond the plane is one mark") << QString::fromUcs4(U"\U0001F600", 1) << QByteArray("?");
    QTest::newRow("the euro sign and the rest") << QStringLiteral(u"\u20AC5 \u2264 6")
                                                << QByteArray("\x80"
                                                              "5 ? 6");
    QTest::newRow("an assigned control of the upper range") << QStringLiteral(u"\u0080") << QByteArray("?");
}

void TextCodecTest::codecWritesCharactersOutsideTheCodePageAsQuestionMarks() {
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(QByteArray::fromStdString(toWindows1252(text)), bytes);
}

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::TextCodecTest)

#include "text_codec_test.moc"
