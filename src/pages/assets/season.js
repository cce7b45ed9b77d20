
/* The season page: leafing through the seasons, lighting up orders, playing the movements. */
const shown = {index: data.seasons.length - 1, frame: 0, areas: []};
const slider = document.getElementById("season");
const place = document.getElementById("place");
const sections = data.seasons.map(season => document.getElementById(season.id));
const isStill = window.matchMedia("(prefers-reduced-motion: reduce)");

function entriesOf(section, where) {
  return Array.from(section.querySelectorAll(".entry")).filter(entry => standsIn(section, entry) === where);
}

/* What a title of the map's drawing says of the unit in a place, by the layer that is shown. */
function unitsIn(section, where) {
  const layer = section.querySelector(isResult(section) ? ".after" : ".before") || section.querySelector(".after");
  return Array.from(layer.querySelectorAll(".unit > title")).map(title => title.textContent)
    .filter(text => provinceOf(text.replace(/^.*\(/, "").replace(/\).*$/, "")) === where);
}

function isResult(section) {
  const result = section.querySelector(".view.result");
  return !result || result.checked;
}

function describeFor(index) {
  return where => {
    const owner = data.seasons[index].owners[where];
    const words = [placeName(where)];
    if (owner) words.push(data.powers[owner] || owner);
    return words.concat(unitsIn(sections[index], where),
      entriesOf(sections[index], where).map(entry => entry.querySelector(".order-text").textContent)).join(", ");
  };
}

function clearLight() {
  const section = sections[shown.index];
  section.querySelectorAll(".on").forEach(lit => lit.classList.remove("on"));
  section.querySelectorAll(".board.lit").forEach(board => board.classList.remove("lit"));
  section.querySelectorAll(".area").forEach(area => area.classList.remove("with", "chosen"));
}

/* Where the unit of an entry stands on the map that is shown. */
function standsIn(section, entry) {
  return provinceOf((isResult(section) && entry.dataset.to) || entry.dataset.at || "");
}

/* Lights up the orders of these entries on the map, with the units that had a part in them. */
function light(entries) {
  clearLight();
  if (entries.length === 0) return;
  const section = sections[shown.index];
  const areas = shown.areas[shown.index];
  for (const entry of entries) {
    entry.classList.add("on");
    const id = section.id + "b-order-" + entry.dataset.power + "-" +
      (entry.dataset.at || "").replace(/[^A-Za-z0-9_-]/g, "-");
    section.querySelectorAll(".order").forEach(order => {
      if (order.id === id || (order.id.startsWith(id + "-") && /^\d+$/.test(order.id.slice(id.length + 1)))) {
        order.classList.add("on");
        section.querySelector(".board").classList.add("lit");
      }
    });
    const all = Array.from(section.querySelectorAll(".entry"));
    for (const at of (entry.dataset.with || "").split(" ")) {
      const other = all.find(candidate => candidate.dataset.at === at);
      const area = areas[other ? standsIn(section, other) : provinceOf(at)];
      if (area) area.classList.add("with");
    }
    const own = areas[standsIn(section, entry)];
    if (own) own.classList.add("chosen");
  }
}

/* Says beside the map what there is in a province, what its unit was ordered and why it came out so. */
function tell(where) {
  const section = sections[shown.index];
  const entries = entriesOf(section, where);
  light(entries);
  const area = shown.areas[shown.index][where];
  if (area) area.classList.add("chosen");
  place.replaceChildren();
  const heading = document.createElement("strong");
  const owner = data.seasons[shown.index].owners[where];
  heading.textContent = placeName(where) + (owner ? ", " + (data.powers[owner] || owner) : "");
  place.appendChild(heading);
  const add = (text, kind) => {
    const line = document.createElement("span");
    line.textContent = text;
    line.className = kind;
    place.append(line, " ");
  };
  for (const entry of entries) {
    for (const part of entry.children) add(part.textContent, part.className);
  }
  const units = unitsIn(section, where);
  if (entries.length === 0) add(units.length > 0 ? units.join(", ") : "No unit here.", "order-text");
  place.hidden = false;
  section.querySelector(".map").appendChild(place);
}

function hideTold() {
  clearLight();
  place.hidden = true;
}

function prepare(index) {
  const section = sections[index];
  if (shown.areas[index]) return;
  const describe = describeFor(index);
  const areas = layAreas(section.querySelector(".board"), describe, tell);
  addZoom(section.querySelector(".map"));
  shown.areas[index] = areas;
  for (const input of section.querySelectorAll(".view")) {
    input.addEventListener("change", () => {
      stopPlaying();
      hideTold();
      for (const where of Object.keys(areas)) areas[where].setAttribute("aria-label", describe(where));
    });
  }
  for (const where of Object.keys(areas)) {
    areas[where].addEventListener("mouseenter", () => { if (place.hidden) light(entriesOf(section, where)); });
    areas[where].addEventListener("mouseleave", () => { if (place.hidden) clearLight(); });
  }
  for (const entry of section.querySelectorAll(".entry")) {
    const text = entry.querySelector(".order-text");
    const button = document.createElement("button");
    button.type = "button";
    button.className = "order-text";
    button.textContent = text.textContent;
    text.replaceWith(button);
    const show = () => { place.hidden = true; light([entry]); };
    button.addEventListener("click", show);
    button.addEventListener("focus", show);
    entry.addEventListener("mouseenter", show);
    entry.addEventListener("mouseleave", hideTold);
  }
}

function show(index) {
  stopPlaying();
  hideTold();
  shown.index = Math.min(Math.max(index, 0), sections.length - 1);
  sections.forEach((section, i) => { section.hidden = i !== shown.index; });
  prepare(shown.index);
  const name = data.seasons[shown.index].name;
  slider.value = String(shown.index);
  slider.setAttribute("aria-valuetext", name);
  document.getElementById("season-name").textContent = name;
  document.getElementById("previous").disabled = shown.index === 0;
  document.getElementById("next").disabled = shown.index === sections.length - 1;
  document.getElementById("play").disabled = data.seasons[shown.index].journeys.length === 0;
}

/* The movement: first all moves, then the retreats, last what is built or disbanded, with short rests; in seconds
   as in the window. */
const firstRest = 0.5, movesTime = 1.6, retreatsTime = 1.2, adjustmentsTime = 0.9, restAfter = 0.3, lastRest = 0.4;
const pushStart = 0.7, asideScale = 0.75;

const standsAside = journey => journey.aside || journey.pushed;
const vanishesAside = journey => journey.vanishes && standsAside(journey) && !journey.retreat;
const hasMoves = journey => journey.way.length > 1 || journey.pushed;
const hasRetreats = journey => journey.retreat || vanishesAside(journey);
const hasAdjustments = journey => journey.appears || (journey.vanishes && !vanishesAside(journey));

function clockAt(journeys, seconds) {
  let begin = firstRest;
  const part = (takesPart, length) => {
    if (!journeys.some(takesPart)) return 1;
    const done = Math.min(Math.max((seconds - begin) / length, 0), 1);
    begin += length + restAfter;
    return done;
  };
  const clock = {moves: part(hasMoves, movesTime), retreats: part(hasRetreats, retreatsTime),
    adjustments: part(hasAdjustments, adjustmentsTime)};
  clock.all = begin + lastRest;
  return clock;
}

function eased(part) {
  const t = Math.min(Math.max(part, 0), 1);
  return t * t * (3 - 2 * t);
}

function spotOn(way, part) {
  const lengths = way.slice(1).map((to, i) => Math.hypot(to[0] - way[i][0], to[1] - way[i][1]));
  let rest = part * lengths.reduce((sum, length) => sum + length, 0);
  for (let i = 0; i < lengths.length; ++i) {
    if (rest <= lengths[i] || i === lengths.length - 1) {
      const t = lengths[i] === 0 ? 0 : rest / lengths[i];
      return [way[i][0] + (way[i + 1][0] - way[i][0]) * t, way[i][1] + (way[i + 1][1] - way[i][1]) * t];
    }
    rest -= lengths[i];
  }
  return way[0];
}

function poseAt(journey, clock) {
  let at = journey.way[0];
  let scale = 1;
  const bring = (to, wanted, part) => {
    at = [at[0] + (to[0] - at[0]) * part, at[1] + (to[1] - at[1]) * part];
    scale += (wanted - scale) * part;
  };
  const own = journey.aside ? asideScale : 1;
  if (!journey.aside && journey.way.length > 1) {
    let gone = eased(clock.moves);
    if (journey.bounces) {
      const done = journey.pushed ? Math.min(1, clock.moves / pushStart) : clock.moves;
      gone = eased(done < 0.5 ? 2 * done : 2 - 2 * done) / 2;
    }
    at = spotOn(journey.way, gone);
  }
  if (journey.pushed && clock.moves > pushStart) bring(journey.pushed, asideScale, eased((clock.moves - pushStart) / (1 - pushStart)));
  if (vanishesAside(journey)) scale *= 1 - eased(clock.retreats);
  else if (journey.retreat) bring(journey.retreat, 1 / own, eased(clock.retreats));
  if (journey.appears) scale *= eased(clock.adjustments);
  else if (hasAdjustments(journey)) scale *= 1 - eased(clock.adjustments);
  return {at, scale};
}

function putUnit(element, journey, clock) {
  const {at, scale} = poseAt(journey, clock);
  const home = journey.way[0];
  element.setAttribute("transform", "translate(" + at[0] + " " + at[1] + ") scale(" + Math.max(scale, 0.001) +
    ") translate(" + -home[0] + " " + -home[1] + ")");
}

function setView(section, kind) {
  const input = section.querySelector(".view." + kind);
  if (input) input.checked = true;
}

function stopPlaying() {
  if (!shown.playing) return;
  cancelAnimationFrame(shown.frame);
  shown.playing.guests.forEach(guest => guest.remove());
  shown.playing.moved.forEach(unit => unit.removeAttribute("transform"));
  shown.playing.section.classList.remove("playing");
  shown.playing = null;
  document.getElementById("play").textContent = "Play";
}

function play() {
  hideTold();
  const section = sections[shown.index];
  const journeys = data.seasons[shown.index].journeys;
  if (isStill.matches) {
    // Without motion the change is shown at once: before, then after.
    setView(section, isResult(section) ? "orders" : "result");
    return;
  }
  setView(section, "orders");
  const playing = {section, guests: [], moved: []};
  const units = journeys.map(journey => {
    let unit = document.getElementById(journey.unit);
    if (unit && journey.appears) {
      unit = unit.cloneNode(true);
      unit.removeAttribute("id");
      section.querySelector(".before").appendChild(unit);
      playing.guests.push(unit);
    } else if (unit) {
      playing.moved.push(unit);
    }
    return unit;
  });
  shown.playing = playing;
  section.classList.add("playing");
  document.getElementById("play").textContent = "Stop";
  let start = null;
  const step = now => {
    if (start === null) start = now;
    const clock = clockAt(journeys, (now - start) / 1000);
    units.forEach((unit, i) => { if (unit) putUnit(unit, journeys[i], clock); });
    if ((now - start) / 1000 >= clock.all) {
      stopPlaying();
      setView(section, "result");
      return;
    }
    shown.frame = requestAnimationFrame(step);
  };
  shown.frame = requestAnimationFrame(step);
}

/* On paper each season is as it came out, whatever is lit or moves on the screen. */
window.addEventListener("beforeprint", () => { stopPlaying(); hideTold(); });
document.documentElement.classList.add("js");
for (const section of sections) section.parentNode.insertBefore(section, document.querySelector(".reading"));
slider.max = String(sections.length - 1);
for (const part of [slider.parentNode, document.getElementById("previous"), document.getElementById("next")]) part.hidden = sections.length === 1;
slider.addEventListener("input", () => show(Number(slider.value)));
document.getElementById("previous").addEventListener("click", () => show(shown.index - 1));
document.getElementById("next").addEventListener("click", () => show(shown.index + 1));
document.getElementById("play").addEventListener("click", () => shown.playing ? stopPlaying() : play());
document.addEventListener("keydown", event => {
  if (event.altKey || event.ctrlKey || event.metaKey || /^(INPUT|SELECT|TEXTAREA)$/.test(event.target.tagName)) return;
  if (event.key === "ArrowLeft") show(shown.index - 1);
  else if (event.key === "ArrowRight") show(shown.index + 1);
  else if (event.key === "Home" && event.target === document.body) show(0);
  else if (event.key === "End" && event.target === document.body) show(sections.length - 1);
  else if (event.key === "Escape") { stopPlaying(); hideTold(); }
});
if (sections.length > 1 || data.seasons[0].journeys.length > 0) document.querySelector(".steering").hidden = false;
show(shown.index);
