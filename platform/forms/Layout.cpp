#include "platform/forms/Layout.h"

#include "platform/forms/Place_Data.h"

namespace Forms {

namespace {

Place Of_Kind(Place_Kind kind, const Places& places) {
  auto data = std::make_shared<Place_Data>();
  data->kind = kind;
  data->places = places;
  return Place(std::move(data));
}

}  // namespace

Place::Place(Placed_Control& control) : data_(std::make_shared<Place_Data>()) {
  data_->control = &control;
}

Place Place::Changed(const std::function<void(Place_Data&)>& change) const {
  auto data = std::make_shared<Place_Data>(*data_);
  change(*data);
  return Place(std::move(data));
}

Place Place::Grow(int share) const {
  return Changed([&](Place_Data& data) { data.share = share; });
}

Place Place::Wide(int characters) const {
  return Changed([&](Place_Data& data) { data.characters = characters; });
}

Place Place::High(int lines, int at_least) const {
  return Changed([&](Place_Data& data) {
    data.lines = lines;
    data.least_lines = at_least;
  });
}

Place Place::Centred() const {
  return Changed([](Place_Data& data) { data.alignment = Qt::AlignCenter; });
}

Place Place::At_Right() const {
  return Changed([](Place_Data& data) { data.alignment = Qt::AlignRight | Qt::AlignVCenter; });
}

Place Row(const Places& places) { return Of_Kind(Place_Kind::Row, places); }

Place Column(const Places& places) { return Of_Kind(Place_Kind::Column, places); }

Place Fields(const std::vector<Field_Line>& lines) {
  Places places;
  for (const Field_Line& line : lines) {
    places.emplace_back(line.label);
    places.push_back(line.field);
  }
  return Of_Kind(Place_Kind::Fields, places);
}

Place Below(Label& label, const Place& field) {
  return Of_Kind(Place_Kind::Below, {Place(label), field});
}

Place Grid(int columns, const Places& places) {
  Place place = Of_Kind(Place_Kind::Grid, places);
  place.Data()->columns = columns;
  return place;
}

Place Buttons(const Places& buttons) { return Of_Kind(Place_Kind::Buttons, buttons); }

Place One_Place(const Places& places) { return Of_Kind(Place_Kind::One_Place, places); }

Place Above_Below(const Place& upper, const Place& lower) {
  return Of_Kind(Place_Kind::Above_Below, {upper, lower}).Grow();
}

Place Side_By_Side(const Place& left, const Place& right) {
  return Of_Kind(Place_Kind::Side_By_Side, {left, right}).Grow();
}

Place Stretch(int share) { return Of_Kind(Place_Kind::Stretch, {}).Grow(share); }

Place Space() { return Of_Kind(Place_Kind::Space, {}); }

}  // namespace Forms
