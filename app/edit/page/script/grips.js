// Points of a selected object that can be dragged on their own: corners, ends, the rim of a circle.
import { put, tidy, turnedPoint } from "./plane.js";

const SMALLEST = 10; // mm, of a side or radius

function corner(object, value, key, signX, signY) {
  const at = object[key];
  const angle = value("angle") ?? 0;
  const place = (length, depth) => turnedPoint([at[0] + (signX * length) / 2, at[1] + (signY * depth) / 2], at, angle);
  const opposite = turnedPoint([at[0] - (signX * value("length")) / 2, at[1] - (signY * value("depth")) / 2], at, angle);
  return {
    at: place(value("length"), value("depth")),
    /** The opposite corner stays where it is. */
    drag(point) {
      const [x, y] = turnedPoint(point, opposite, -angle);
      const length = Math.max(SMALLEST, Math.round(signX * (x - opposite[0])));
      const depth = Math.max(SMALLEST, Math.round(signY * (y - opposite[1])));
      const centre = turnedPoint([opposite[0] + (signX * length) / 2, opposite[1] + (signY * depth) / 2], opposite, angle);
      return { ...object, [key]: put(at, centre), length, depth };
    },
  };
}

function end(object, key) {
  return { at: object[key], drag: (point) => ({ ...object, [key]: put(object[key], point) }) };
}

function vertex(object, index) {
  return {
    at: object.polyline[index],
    drag: (point) => ({ ...object, polyline: object.polyline.map((old, i) => (i === index ? put(old, point) : old)) }),
  };
}

function rim(object) {
  const { center, radius } = object.circle;
  return {
    at: [center[0] + radius, center[1]],
    drag: ([x, y]) => {
      const circle = { ...object.circle, radius: Math.max(SMALLEST, tidy(Math.hypot(x - center[0], y - center[1]))) };
      delete circle.radiusPoint;
      return { ...object, circle };
    },
  };
}

/** `value` answers the object's value of a key, or the default of its class. */
export function gripsOf(object, value) {
  const key = ["center", "position"].find((name) => object[name]);
  if (key && value("length") > 0 && value("depth") > 0) {
    return [[-1, -1], [1, -1], [1, 1], [-1, 1]].map(([x, y]) => corner(object, value, key, x, y));
  }
  if (object.polyline) return object.polyline.map((point, index) => vertex(object, index));
  if (object.circle) return [rim(object)];
  return ["start", "through", "end"].filter((name) => object[name]).map((name) => end(object, name));
}
