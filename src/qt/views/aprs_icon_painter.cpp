// One painter for all the icons, driven by a table: shape, fill colour and the code's
// characters. A symbol missing from the table gets a plain grey square with its characters.
#include "qt/views/aprs_icon_painter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <array>
#include <cmath>
#include <numbers>

namespace tesk {

namespace {

enum class Shape { Circle, Square, Diamond, Triangle, House, Star };

struct IconLook {
  std::string_view code;
  Shape shape;
  QRgb fill;
};

constexpr std::array<IconLook, 20> kLooks{{
    {"\\S", Shape::Star, 0xff1e4fa8},      // satellite
    {"/S", Shape::Triangle, 0xff5a5a78},   // shuttle
    {"/-", Shape::House, 0xff2e8b3a},      // home
    {"\\-", Shape::House, 0xff8a5a12},     // home with HF
    {"/y", Shape::House, 0xff0f7f8f},      // home with yagi
    {"/>", Shape::Square, 0xffc62828},     // car
    {"/K", Shape::Square, 0xff6a1b9a},     // school
    {"\\!", Shape::Triangle, 0xffe53935},  // emergency
    {"/+", Shape::Circle, 0xffd32f2f},     // red cross
    {"/`", Shape::Circle, 0xff546e7a},     // dish
    {"/_", Shape::Circle, 0xff1976d2},     // weather station
    {"/W", Shape::Diamond, 0xff0288d1},    // weather service
    {"\\d", Shape::Diamond, 0xffef6c00},   // DX spot
    {"/Y", Shape::Triangle, 0xff00838f},   // yacht
    {"/O", Shape::Circle, 0xffad1457},     // balloon
    {"/#", Shape::Star, 0xff388e3c},       // digipeater
    {"/n", Shape::Diamond, 0xff455a64},    // node
    {"/&", Shape::Diamond, 0xff5d4037},    // gateway
    {"/m", Shape::Square, 0xff00695c},     // repeater
    {"/r", Shape::Triangle, 0xff37474f},   // tower
}};

QPainterPath Outline(Shape shape, const QRectF& r) {
  QPainterPath path;
  const QPointF c = r.center();
  switch (shape) {
    case Shape::Circle:
      path.addEllipse(r);
      break;
    case Shape::Square:
      path.addRoundedRect(r, r.width() / 6, r.height() / 6);
      break;
    case Shape::Diamond:
      path.addPolygon(QPolygonF({QPointF(c.x(), r.top()), QPointF(r.right(), c.y()),
                                 QPointF(c.x(), r.bottom()), QPointF(r.left(), c.y())}));
      path.closeSubpath();
      break;
    case Shape::Triangle:
      path.addPolygon(QPolygonF({QPointF(c.x(), r.top()), r.bottomRight(), r.bottomLeft()}));
      path.closeSubpath();
      break;
    case Shape::House:
      path.addPolygon(QPolygonF({QPointF(c.x(), r.top()), QPointF(r.right(), c.y() - 2),
                                 r.bottomRight(), r.bottomLeft(), QPointF(r.left(), c.y() - 2)}));
      path.closeSubpath();
      break;
    case Shape::Star: {
      QPolygonF star;
      for (int i = 0; i < 10; ++i) {
        const double radius = (i % 2 == 0 ? 0.5 : 0.28) * r.width();
        const double angle = -std::numbers::pi / 2 + i * std::numbers::pi / 5;
        star << QPointF(c.x() + radius * std::cos(angle), c.y() + radius * std::sin(angle));
      }
      path.addPolygon(star);
      path.closeSubpath();
      break;
    }
  }
  return path;
}

}  // namespace

QPixmap AprsIconPixmap(std::string_view code, int size, bool marked) {
  QPixmap pm(size, size);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF box(3, 3, size - 6, size - 6);
  Shape shape = Shape::Square;
  QColor fill(150, 150, 150);
  for (const IconLook& look : kLooks) {
    if (look.code == code) {
      shape = look.shape;
      fill = QColor::fromRgba(look.fill);
    }
  }
  p.setPen(QPen(fill.darker(160), 1.2));
  p.setBrush(fill);
  if (code.size() < 2) {
    // The user's own icon: an open square with a question mark, as it has no picture.
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(90, 90, 90), 1.5, Qt::DashLine));
  }
  p.drawPath(Outline(shape, box));

  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(size * 2 / 5);
  p.setFont(f);
  p.setPen(code.size() < 2 ? QColor(60, 60, 60) : QColor(Qt::white));
  const QString symbol = code.size() < 2 ? QStringLiteral("?") : QString(QChar(code[1]));
  // A triangle's middle is low; the character sits a little lower to stay inside.
  const QRectF text = shape == Shape::Triangle ? box.adjusted(0, box.height() / 5, 0, 0) : box;
  p.drawText(text, Qt::AlignCenter, symbol);
  if (code.size() >= 2) {
    // The table character on a small white tag, readable whatever the shape's colour.
    const QRectF tag(0.5, size - size / 2.6 - 0.5, size / 2.6, size / 2.6);
    p.setPen(QPen(QColor(60, 60, 60), 1));
    p.setBrush(QColor(Qt::white));
    p.drawRoundedRect(tag, 2, 2);
    f.setPixelSize(size / 3);
    p.setFont(f);
    p.setPen(QColor(Qt::black));
    p.drawText(tag, Qt::AlignCenter, QString(QChar(code[0])));
  }
  if (marked) {
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(220, 0, 0), 3));
    p.drawRect(QRectF(1.5, 1.5, size - 3, size - 3));
  }
  return pm;
}

}  // namespace tesk
