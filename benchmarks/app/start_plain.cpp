// SPDX-License-Identifier: Apache-2.0
// Shows a window of 20 plain widgets with finished style sheets and ends at its first paint.
#include "FirstPaint.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

/// The expanded style texts of start_ours.
const QString groundSheet = QStringLiteral(
        "#ground{background-color:#ff010000;}#ground:checked{background-color:#ff010005;}"
        "#ground:focus{background-color:#ff010004;}#ground:hover{background-color:#ff010001;}"
        "#ground:pressed{background-color:#ff010002;}#ground:disabled{background-color:#ff010003;}"
        " #ground{border-radius:4px;}");
const QString labelSheet = QStringLiteral(
        "#label{border:none;}#label{color:#ff020000;}#label:checked{color:#ff020005;}"
        "#label:focus{color:#ff020004;}#label:hover{color:#ff020001;}"
        "#label:pressed{color:#ff020002;}#label:disabled{color:#ff020003;}");

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QFont font;
    font.setFamily(QStringLiteral("Segoe UI"));
    font.setPixelSize(16);
    QApplication::setFont(font);
    QWidget window;
    const FirstPaint firstPaint(&window);
    auto *layout = new QVBoxLayout(&window);
    for (int i = 0; i < 10; ++i) {
        auto *ground = new QWidget(&window);
        ground->setObjectName(QStringLiteral("ground"));
        ground->setAttribute(Qt::WA_StyledBackground);
        ground->setStyleSheet(groundSheet);
        auto *label = new QLabel(QStringLiteral("Ready to join"), ground);
        label->setObjectName(QStringLiteral("label"));
        label->setTextFormat(Qt::PlainText);
        label->setStyleSheet(labelSheet);
        (new QVBoxLayout(ground))->addWidget(label);
        layout->addWidget(ground);
    }
    window.show();
    return QCoreApplication::exec();
}
