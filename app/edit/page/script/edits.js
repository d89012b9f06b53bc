// What can be done to an object of the site file. Objects are values: every edit makes a new one.
import { put, turnedPoint } from "./plane.js";

const POINTS = ["center", "position", "start", "end", "through", "radiusPoint", "low", "high"];
const LISTS = ["polyline", "outline"];
const INNER = ["circle", "footprint", "extents", "secondView"];

/** The object with every point of it in plan replaced. */
function withPoints(object, replace) {
  const result = { ...object };
  for (const key of POINTS) if (Array.isArray(result[key])) result[key] = put(result[key], replace(result[key]));
  for (const key of LISTS) {
    if (Array.isArray(result[key])) result[key] = result[key].map((point) => put(point, replace(point)));
  }
  for (const key of INNER) if (result[key] && typeof result[key] === "object") result[key] = withPoints(result[key], replace);
  return result;
}

export function moved(object, dx, dy) {
  return withPoints(object, ([x, y]) => [x + dx, y + dy]);
}

function middle(points) {
  const sum = points.reduce(([x, y], point) => [x + point[0], y + point[1]], [0, 0]);
  return [sum[0] / points.length, sum[1] / points.length];
}

/** Where the object stands: what a grid holds, and what it turns about. Null for an object without a place. */
export function anchor(object) {
  const point = object.center ?? object.position ?? object.circle?.center;
  if (point) return point;
  if (object.polyline?.length > 0) return object.polyline[0];
  return object.start ?? null;
}

function pivot(object) {
  if (object.polyline?.length > 0) return middle(object.polyline);
  if (object.start && object.end) return middle([object.start, object.end]);
  return anchor(object);
}

export function turnedAngle(angle, degrees) {
  const turned = Math.round((angle + degrees) * 1000) / 1000;
  return turned > 360 || turned <= -360 ? turned % 360 : turned;
}

/** Turned about its middle; null where nothing of it can turn. */
export function turned(object, degrees, hasAngle) {
  const about = pivot(object);
  if (!about) return null;
  const isLine = object.start && object.end;
  if (!hasAngle && !isLine && !object.polyline) return null;
  const result = withPoints(object, (point) => turnedPoint(point, about, degrees));
  if (hasAngle && !object.polyline) result.angle = turnedAngle(object.angle ?? 0, degrees);
  return result;
}

export function middleOf(object) {
  return pivot(object);
}

/** The object with a value under a key; undefined takes the key away. */
export function withValue(object, key, value) {
  const result = { ...object };
  if (value === undefined) delete result[key];
  else result[key] = value;
  return result;
}
