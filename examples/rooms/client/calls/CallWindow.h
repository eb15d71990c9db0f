#pragma once
#include <QWidget>
class CallWindow : public QWidget
{ };
