// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Draws the site pictures of the program folder's Image folder, one per pump quantity and number of branches.
#include <QColor>
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <cstdio>

namespace {

constexpr int pictureWidth = 400;
constexpr int pictureHeight = 300;
constexpr int maxQuantity = 4;
constexpr int maxBranches = 4;

const QColor groundColour(120, 90, 60);
const QColor tankColour(205, 215, 225);
const QColor pumpColour(230, 120, 40);
const QColor pipeColour(30, 90, 170);
const QColor dispenserColour(70, 150, 80);
const QColor textColour(30, 30, 30);

constexpr int groundY = 128;
constexpr int trunkY = 162;
constexpr int tankTop = 200;
constexpr int tankBottom = 268;
constexpr int tankLeft = 24;
constexpr int tankRight = 176;
constexpr int dispenserTop = 62;
constexpr int dispenserHeight = 44;
constexpr int dispenserWidth = 36;

QString counted(int count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

void drawText(QPainter& painter, const QRect& box, const QString& text, int pointSize, bool bold = false) {
    QFont font = painter.font();
    font.setPointSize(pointSize);
    font.setBold(bold);
    painter.setFont(font);
    painter.setPen(textColour);
    painter.drawText(box, Qt::AlignCenter, text);
}

void drawGround(QPainter& painter) {
    painter.setPen(QPen(groundColour, 2));
    painter.drawLine(0, groundY, pictureWidth, groundY);
    painter.setPen(QPen(groundColour, 1));
    for (int x = 4; x < pictureWidth; x += 12) {
        painter.drawLine(x, groundY + 1, x - 6, groundY + 7);
    }
    drawText(painter, QRect(4, groundY - 16, 60, 14), QStringLiteral("Grade"), 8);
}

void drawTank(QPainter& painter) {
    painter.setPen(QPen(textColour, 1.5));
    painter.setBrush(tankColour);
    const QRectF body(tankLeft, tankTop, tankRight - tankLeft, tankBottom - tankTop);
    painter.drawRoundedRect(body, 30, 30);
    drawText(painter, QRect(tankLeft, tankTop + 26, tankRight - tankLeft, 30), QStringLiteral("Tank"), 11, true);
}

// The pump heads on the tank and the manifold that joins them to the trunk;
// returns where the trunk begins.
int drawPumps(QPainter& painter, int quantity) {
    const int spacing = (tankRight - tankLeft) / (quantity + 1);
    const int headWidth = 24;
    const int headHeight = 18;
    int lastX = 0;
    for (int pump = 1; pump <= quantity; ++pump) {
        const int x = tankLeft + pump * spacing;
        lastX = x;
        painter.setPen(QPen(pipeColour, 3));
        painter.drawLine(x, tankTop + 10, x, trunkY);
        painter.setPen(QPen(textColour, 1));
        painter.setBrush(pumpColour);
        const QRect head(x - headWidth / 2, tankTop - headHeight / 2 - 6, headWidth, headHeight);
        painter.drawRect(head);
        drawText(painter, head, QStringLiteral("P%1").arg(pump), 7, true);
    }
    painter.setPen(QPen(pipeColour, 3));
    painter.drawLine(tankLeft + spacing, trunkY, lastX, trunkY);
    return lastX;
}

// A dispenser with its hose and nozzle, standing on the branch at x.
void drawDispenser(QPainter& painter, int x, int number) {
    const QRect box(x - dispenserWidth / 2, dispenserTop, dispenserWidth, dispenserHeight);
    painter.setPen(QPen(textColour, 1));
    painter.setBrush(dispenserColour);
    painter.drawRect(box);
    drawText(painter, box, QStringLiteral("D%1").arg(number), 8, true);

    QPainterPath hose;
    hose.moveTo(box.right(), box.top() + 10);
    hose.cubicTo(box.right() + 14, box.top() + 10, box.right() + 14, box.bottom() - 4, box.right() + 6,
                 box.bottom() - 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(textColour, 1.5));
    painter.drawPath(hose);
    painter.drawLine(box.right() + 6, box.bottom() - 2, box.right() + 12, box.bottom() + 4);
}

void drawBranches(QPainter& painter, int trunkStart, int branches) {
    const int firstX = 214;
    const int lastX = 364;
    const int step = branches > 1 ? (lastX - firstX) / (branches - 1) : 0;
    const int trunkEnd = branches > 1 ? lastX : firstX;

    painter.setPen(QPen(pipeColour, 4));
    painter.drawLine(trunkStart, trunkY, trunkEnd, trunkY);
    const int trunkLabelX = (trunkStart + firstX) / 2;
    drawText(painter, QRect(trunkLabelX - 30, trunkY - 17, 60, 14), QStringLiteral("Trunk"), 8);

    for (int branch = 1; branch <= branches; ++branch) {
        const int x = firstX + (branch - 1) * step;
        painter.setPen(QPen(pipeColour, 2.5));
        painter.drawLine(x, trunkY, x, dispenserTop + dispenserHeight);
        painter.setBrush(pipeColour);
        painter.drawEllipse(QPoint(x, trunkY), 3, 3);
        drawText(painter, QRect(x - 24, trunkY + 6, 48, 14), QStringLiteral("Branch %1").arg(branch), 7);
        drawDispenser(painter, x, branch);
    }
}

QImage sitePicture(int quantity, int branches) {
    QImage image(pictureWidth, pictureHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);

    drawText(painter, QRect(0, 8, pictureWidth, 22),
             counted(quantity, "Pump", "Pumps") + QStringLiteral(", ") + counted(branches, "Branch", "Branches"), 12,
             true);
    drawGround(painter);
    drawTank(painter);
    const int trunkStart = drawPumps(painter, quantity);
    drawBranches(painter, trunkStart, branches);

    painter.setPen(QPen(QColor(160, 160, 160), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(0, 0, pictureWidth - 1, pictureHeight - 1);
    return image;
}

} // namespace

int main(int argc, char* argv[]) {
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: vesk-site-pictures IMAGE_FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (int quantity = 1; quantity <= maxQuantity; ++quantity) {
        for (int branches = 1; branches <= maxBranches; ++branches) {
            const QString name = QStringLiteral("%1Pump%2Branch.jpg").arg(quantity).arg(branches);
            if (!sitePicture(quantity, branches).save(folder.filePath(name), "JPEG", 90)) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(folder.filePath(name)));
                return 1;
            }
        }
    }
    return 0;
}
