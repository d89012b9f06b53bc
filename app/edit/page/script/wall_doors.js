// The doors that a wall names stand where it has them, whatever becomes of the wall.
import { turnedAngle } from "./edits.js";
import { put } from "./plane.js";

/** The middle line of a wall: [direction, normal] of length 1. Null where it has no length. */
function axisOf({ start, end }) {
  if (!Array.isArray(start) || !Array.isArray(end)) return null;
  const [x, y] = [end[0] - start[0], end[1] - start[1]];
  const length = Math.hypot(x, y);
  if (!(length > 0)) return null;
  return { start, x: x / length, y: y / length, degrees: (Math.atan2(y, x) * 180) / Math.PI };
}

function movedDoor(door, from, to, farther) {
  const [x, y] = [door.position[0] - from.start[0], door.position[1] - from.start[1]];
  const along = x * from.x + y * from.y + farther;
  const beside = y * from.x - x * from.y;
  const position = [to.start[0] + along * to.x - beside * to.y, to.start[1] + along * to.y + beside * to.x];
  const result = { ...door, position: put(door.position, position) };
  const degrees = to.degrees - from.degrees;
  if (degrees !== 0) result.angle = turnedAngle(door.angle ?? 0, degrees);
  return result;
}

function doorEntries(wall) {
  return Array.isArray(wall.doors) ? wall.doors.filter((entry) => Number.isSafeInteger(entry?.door)) : [];
}

/**
 * The changes of the doors when a wall `before` becomes `after`: along the axis as far from its start as they were, or
 * as much farther as their distance says now. `objectOf` answers an object by its handle.
 */
export function doorChanges(before, after, objectOf) {
  const from = axisOf(before);
  const to = axisOf(after);
  if (!from || !to) return [];
  const formerly = new Map(doorEntries(before).map(({ door, distance }) => [door, distance]));
  const changes = [];
  for (const { door, distance } of doorEntries(after)) {
    const handle = `${door}`;
    const object = objectOf(handle);
    const farther = distance - formerly.get(door);
    if (!Array.isArray(object?.position) || !Number.isFinite(farther)) continue;
    const changed = movedDoor(object, from, to, farther);
    if (JSON.stringify(changed) !== JSON.stringify(object)) changes.push({ handle, object: changed });
  }
  return changes;
}

/** A copy of a wall has none of its doors: each stands in one wall. */
export function withoutDoors(wall) {
  return Array.isArray(wall.doors) ? { ...wall, doors: wall.doors.filter((entry) => entry?.door === undefined) } : wall;
}
