#include "shell/state_json.h"

#include <cmath>
#include <limits>
#include <memory>
#include <set>
#include <type_traits>

namespace lf {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

template <class T>
struct IsTable : std::false_type {};
template <class T, int Hi>
struct IsTable<Table<T, Hi>> : std::true_type {};

struct FieldProbe {
  template <class T>
  void operator()(const char*, T&) {}
};
template <class T>
concept HasFields = requires(FieldProbe& p, T& t) { VisitFields(p, t); };

template <class T>
ordered_json ToJson(T& value);

struct Writer {
  ordered_json& out;
  template <class T>
  void operator()(const char* name, T& value) {
    out[name] = ToJson(value);
  }
};

template <class T>
ordered_json ToJson(T& value) {
  if constexpr (IsTable<T>::value) {
    ordered_json a = ordered_json::array();
    for (auto& item : value) a.push_back(ToJson(item));
    return a;
  } else if constexpr (HasFields<T>) {
    ordered_json o = ordered_json::object();
    Writer w{o};
    VisitFields(w, value);
    return o;
  } else if constexpr (std::is_floating_point_v<T>) {
    // A dump never carries NaN or infinity: JSON has no words for them.
    return std::isfinite(value) ? ordered_json(value) : ordered_json(0.0);
  } else {
    return ordered_json(value);
  }
}

std::string Join(const std::string& path, const std::string& key) {
  return path.empty() ? key : path + "." + key;
}

template <class T>
void FromJson(T& target, const json& in, const std::string& path);

struct Reader {
  const json& in;
  const std::string& path;
  std::set<std::string> seen;
  template <class T>
  void operator()(const char* name, T& value) {
    seen.insert(name);
    auto it = in.find(name);
    if (it != in.end()) FromJson(value, *it, Join(path, name));
  }
};

template <class T>
void FromJson(T& target, const json& in, const std::string& path) {
  if constexpr (IsTable<T>::value) {
    if (in.is_array()) {
      if (in.size() > static_cast<std::size_t>(T::size()))
        throw RestoreError(path + ": more than " + std::to_string(T::size()) + " elements");
      for (std::size_t i = 0; i < in.size(); ++i)
        FromJson(target[static_cast<long long>(i)], in[i], path + "[" + std::to_string(i) + "]");
    } else if (in.is_object()) {
      for (auto& [key, item] : in.items()) {
        std::size_t used = 0;
        long long index = -1;
        try {
          index = std::stoll(key, &used);
        } catch (const std::exception&) {
          used = 0;
        }
        if (used != key.size() || key.empty() || !T::InBounds(index))
          throw RestoreError(path + ": no element \"" + key + "\" (0.." + std::to_string(T::kHi) + ")");
        FromJson(target[index], item, path + "[" + key + "]");
      }
    } else {
      throw RestoreError(path + ": expected an array or an object keyed by index");
    }
  } else if constexpr (HasFields<T>) {
    if (!in.is_object()) throw RestoreError(path + ": expected an object");
    Reader r{in, path, {}};
    VisitFields(r, target);
    for (auto& [key, item] : in.items())
      if (!r.seen.count(key)) throw RestoreError(Join(path, key) + ": unknown name");
  } else if constexpr (std::is_same_v<T, std::string>) {
    if (!in.is_string()) throw RestoreError(path + ": expected a string");
    target = in.get<std::string>();
  } else if constexpr (std::is_floating_point_v<T>) {
    if (!in.is_number()) throw RestoreError(path + ": expected a number");
    target = in.get<double>();
  } else {
    static_assert(std::is_integral_v<T>);
    if (in.is_boolean()) {
      target = in.get<bool>() ? static_cast<T>(-1) : static_cast<T>(0);
      if constexpr (std::is_unsigned_v<T>) target = in.get<bool>() ? 1 : 0;
      return;
    }
    if (!in.is_number()) throw RestoreError(path + ": expected a number");
    if (in.is_number_float()) {
      const double d = in.get<double>();
      if (!Assign(target, d)) throw RestoreError(path + ": " + in.dump() + " does not fit");
      return;
    }
    if (in.is_number_unsigned()) {
      const auto u = in.get<std::uint64_t>();
      if (u > static_cast<std::uint64_t>(std::numeric_limits<T>::max()))
        throw RestoreError(path + ": " + in.dump() + " does not fit");
      target = static_cast<T>(u);
      return;
    }
    const auto s = in.get<std::int64_t>();
    if constexpr (std::is_unsigned_v<T>) {
      if (s < 0) throw RestoreError(path + ": " + in.dump() + " does not fit");
      target = static_cast<T>(s);
    } else {
      if (s < std::numeric_limits<T>::min() || s > std::numeric_limits<T>::max())
        throw RestoreError(path + ": " + in.dump() + " does not fit");
      target = static_cast<T>(s);
    }
  }
}

}  // namespace

ordered_json DumpState(Game& g) { return ToJson(g); }

std::string DumpStateText(Game& g) { return DumpState(g).dump(1) + "\n"; }

void RestoreState(Game& g, const json& in) {
  // Merge into a copy so that a bad file leaves the record as it was.
  auto copy = std::make_unique<Game>(g);
  FromJson(*copy, in, "");
  g = std::move(*copy);
}

}  // namespace lf
