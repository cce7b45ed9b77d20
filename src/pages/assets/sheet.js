
/* The order sheet. Which orders are possible stands in the data; nothing here knows a rule of the game. An order is
   kept as the text behind its unit: "- Bur", "S A(Par) - Bur", "retreat Gas"; an adjustment as the unit: "F(Lon)". */
const board = document.querySelector(".board");
const power = document.getElementById("power");
const actions = document.getElementById("actions");
const isAdjusting = data.stage === "adjustments";
const now = {unit: null, verb: null, about: null, orders: {}, areas: {}};
const element = id => document.getElementById(id);

function ownUnits() {
  return data.units.filter(unit => unit.p === power.value);
}

function unitName(unit) {
  return unit.t + "(" + unit.at + ")";
}

function lineOf(unit, order) {
  return unit.p + " " + unitName(unit) + " " + order;
}

function dueOf() {
  return data.powers[power.value].due;
}

/* The parts of an order's text: what is done, about which unit, where to. */
function partsOf(order) {
  const parts = /^(hold|disband|-|S|C|retreat)(?: ((?:[A-Z]{3} )?[AF]\([^)]*\)))?(?: (hold|-))?(?: ?(\S+))?$/.exec(order) || [];
  return {verb: parts[1], about: parts[2] || null, to: parts[4] || null};
}

function placeIn(unitText) {
  return unitText.replace(/^.*\(/, "").replace(/\)$/, "");
}

function storageKey() {
  return "orb-sheet:" + data.powers[power.value].check;
}

/* Browsers may keep pages from storing anything; the sheet then forgets when it is closed. */
function store() {
  try { localStorage.setItem(storageKey(), JSON.stringify(now.orders)); } catch (error) { /* forgotten */ }
}

function restore() {
  now.orders = {};
  try {
    const kept = JSON.parse(localStorage.getItem(storageKey()) || "{}");
    const known = isAdjusting ? () => data.powers[power.value].units
      : key => (ownUnits().find(unit => unit.at === key) || {o: []}).o;
    for (const key of Object.keys(kept)) if (known(key).includes(kept[key])) now.orders[key] = kept[key];
  } catch (error) { now.orders = {}; }
}

function lines() {
  if (!isAdjusting) {
    return ownUnits().filter(unit => now.orders[unit.at]).map(unit => lineOf(unit, now.orders[unit.at]));
  }
  const verb = dueOf() > 0 ? " build " : " disband ";
  return slots().map(slot => now.orders[slot]).filter(Boolean).map(unit => power.value + verb + unit);
}

/* As many builds or removals as are due. */
function slots() {
  return Array.from({length: Math.abs(dueOf())}, (_, i) => String(i + 1));
}

/* What a player would want to know before sending. */
function doubts() {
  if (isAdjusting) return adjustmentDoubts();
  const found = [];
  const missing = ownUnits().filter(unit => !now.orders[unit.at]);
  if (missing.length > 0) found.push("No order yet: " + missing.map(unitName).join(", ") + ".");
  for (const unit of ownUnits()) {
    const order = now.orders[unit.at];
    if (!order) continue;
    const parts = partsOf(order);
    if (data.stage === "retreats") {
      const other = ownUnits().find(rival => rival.at < unit.at && parts.to && now.orders[rival.at] &&
        partsOf(now.orders[rival.at]).to && provinceOf(partsOf(now.orders[rival.at]).to) === provinceOf(parts.to));
      if (other) found.push(unitName(unit) + " and " + unitName(other) + " retreat to one place.");
      continue;
    }
    if (!parts.about || /^[A-Z]{3} /.test(parts.about)) continue;
    const helped = now.orders[placeIn(parts.about)];
    const wanted = parts.to ? "- " + parts.to : null;
    const fits = wanted ? helped === wanted : !helped || !helped.startsWith("- ");
    const what = parts.verb === "C" ? "The convoy by " : "The support by ";
    if (!fits) found.push(what + unitName(unit) + " matches nothing: " + parts.about + " is ordered " + (helped ? "“" + helped + "”" : "nothing yet") + ".");
  }
  return found;
}

function adjustmentDoubts() {
  const given = slots().map(slot => now.orders[slot]).filter(Boolean);
  const found = [];
  given.forEach((unit, i) => {
    if (given.slice(0, i).some(other => provinceOf(placeIn(other)) === provinceOf(placeIn(unit))))
      found.push(placeIn(unit) + " is ordered twice.");
  });
  const missing = Math.abs(dueOf()) - given.length;
  if (missing > 0) found.push(missing + (dueOf() > 0 ? (missing === 1 ? " build is" : " builds are") + " still open." : (missing === 1 ? " unit is" : " units are") + " still to be removed."));
  return found;
}

function resultText() {
  const own = data.powers[power.value];
  return [own.name].concat(lines(), [own.check]).join("\n") + "\n";
}

/* The order in words of a list. */
function optionText(order) {
  return order.replace(/^S /, "supports ").replace(/^C /, "convoys ").replace(/^- /, "moves to ").replace(/^retreat /, "retreats to ").replace(/ - /, " to ");
}

function newSelect(label, options, chosen, choose) {
  const item = document.createElement("li");
  const select = document.createElement("select");
  const caption = document.createElement("label");
  select.id = "order-" + label.replace(/[^A-Za-z0-9]/g, "-");
  caption.htmlFor = select.id;
  caption.textContent = label;
  select.add(new Option("no order", ""));
  const groups = {};
  for (const option of options) {
    const title = {"-": "Move", S: "Support", C: "Convoy", retreat: "Retreat"}[option.split(" ")[0]];
    if (title && !groups[title]) {
      groups[title] = document.createElement("optgroup");
      groups[title].label = title;
      select.add(groups[title]);
    }
    (title ? groups[title] : select).appendChild(new Option(optionText(option), option));
  }
  select.value = chosen || "";
  select.addEventListener("change", () => choose(select.value));
  item.append(caption, select);
  return item;
}

function setOrder(key, order) {
  if (order) now.orders[key] = order; else delete now.orders[key];
  store();
  update();
}

/* Everything that follows from the orders. The lists stay, so that the focus stays in them. */
function update() {
  const list = element("given");
  for (const select of list.querySelectorAll("select")) {
    const wanted = now.orders[select.dataset.key] || "";
    if (select.value !== wanted) select.value = wanted;
  }
  element("doubts").replaceChildren(...doubts().map(text => {
    const item = document.createElement("li");
    item.textContent = text;
    return item;
  }));
  const count = isAdjusting ? Math.abs(dueOf()) : ownUnits().length;
  const kind = !isAdjusting ? "units have an order" : dueOf() > 0 ? "builds are chosen" : "units to be removed are chosen";
  element("count").textContent = count === 0 ? "Nothing is due from you." : lines().length + " of " + count + " " + kind + ".";
  element("result").value = resultText();
  const subject = data.title + ", " + data.season + ", " + data.powers[power.value].name + ": " + data.stage;
  element("mail").href = "mailto:" + encodeURIComponent(data.address).replace(/%40/g, "@") + "?subject=" + encodeURIComponent(subject) + "&body=" + encodeURIComponent(resultText().replace(/\n/g, "\r\n"));
  draw();
  for (const place of Object.keys(now.areas)) now.areas[place].setAttribute("aria-label", describe(place));
}

function describe(place) {
  const words = [placeName(place)];
  for (const title of board.querySelectorAll(".unit > title")) {
    const text = title.textContent;
    if (provinceOf(text.replace(/^[^(]*\(/, "").replace(/\).*$/, "")) === place) words.push(text);
  }
  const unit = ownUnits().find(own => provinceOf(own.at) === place);
  if (unit && !isAdjusting) words.push(now.orders[unit.at] ? optionText(now.orders[unit.at]) : "no order yet");
  if (isAdjusting) for (const chosen of Object.values(now.orders)) if (provinceOf(placeIn(chosen)) === place) words.push((dueOf() > 0 ? "builds " : "removes ") + chosen);
  return words.join(", ");
}

/* Arrows as they are entered. */
function draw() {
  board.querySelectorAll(".drawn").forEach(old => old.remove());
  const group = svgElement("g", {class: "drawn", "aria-hidden": "true"});
  const own = data.powers[power.value];
  const stroke = (path, isDashed) => {
    group.append(svgElement("path", {d: path, class: "edge"}), svgElement("path", {d: path, class: "core" + (isDashed ? " dashed" : ""), stroke: own.colour}));
  };
  const point = place => data.places[place].u;
  const arrow = (from, to, isDashed) => {
    const length = Math.hypot(to[0] - from[0], to[1] - from[1]) || 1;
    const x = (to[0] - from[0]) / length, y = (to[1] - from[1]) / length;
    const tip = [to[0] - 5 * x, to[1] - 5 * y];
    stroke("M" + from + "L" + tip, isDashed);
    stroke("M" + [tip[0] - 9 * x - 6 * y, tip[1] - 9 * y + 6 * x] + "L" + tip + "L" + [tip[0] - 9 * x + 6 * y, tip[1] - 9 * y - 6 * x]);
  };
  const ring = (at, radius) => "M" + (at[0] - radius) + " " + at[1] + "a" + radius + " " + radius + " 0 1 0 " + 2 * radius + " 0a" + radius + " " + radius + " 0 1 0 " + -2 * radius + " 0";
  const cross = at => stroke("M" + (at[0] - 8) + " " + (at[1] - 8) + "l16 16m0-16l-16 16");
  if (isAdjusting) {
    for (const unit of Object.values(now.orders)) {
      const at = point(placeIn(unit));
      if (dueOf() > 0) { stroke(ring(at, 11)); stroke("M" + (at[0] - 5) + " " + at[1] + "h10m-5-5v10"); } else cross(at);
    }
  } else {
    for (const unit of ownUnits()) {
      if (!now.orders[unit.at]) continue;
      const parts = partsOf(now.orders[unit.at]);
      const from = point(unit.at);
      if (parts.verb === "hold") stroke(ring(from, 13));
      else if (parts.verb === "disband") cross(from);
      else if (!parts.about) arrow(from, point(parts.to), parts.verb === "retreat");
      else {
        const helped = point(placeIn(parts.about));
        const aim = parts.to ? point(parts.to) : helped;
        const middle = [(helped[0] + aim[0]) / 2, (helped[1] + aim[1]) / 2];
        stroke("M" + from + "L" + middle, true);
        stroke(ring(middle, 3));
      }
    }
  }
  board.querySelector("g").appendChild(group);
}

function say(text, buttons) {
  element("step").textContent = text;
  actions.replaceChildren(...buttons.map(([label, act, isPressed]) => {
    const button = document.createElement("button");
    button.type = "button";
    button.textContent = label;
    if (isPressed !== undefined) button.setAttribute("aria-pressed", String(isPressed));
    button.addEventListener("click", act);
    return button;
  }));
}

function orderUnit(order) {
  const unit = now.unit;
  now.unit = now.verb = now.about = null;
  setOrder(unit.at, order);
  showStep();
  element("step").textContent = "Entered: " + unitName(unit) + " " + optionText(order) + ". " + element("step").textContent;
}

/* Takes the orders of the unit that are left: at one the choice is made, else buttons or the map decide. */
function settle(orders) {
  if (orders.length === 1) return orderUnit(orders[0]);
  say("Which one?", orders.map(order => [optionText(order), () => orderUnit(order)]).concat([["Back", begin]]));
}

function begin() {
  now.unit = now.verb = now.about = null;
  showStep();
}

function setVerb(verb) {
  now.verb = verb;
  now.about = null;
  showStep();
}

/* The orders that fit what was chosen so far. */
function remaining() {
  return now.unit.o.filter(order => {
    const parts = partsOf(order);
    return (!now.verb || parts.verb === now.verb) && (!now.about || parts.about === now.about);
  });
}

function showStep() {
  for (const place of Object.keys(now.areas)) now.areas[place].classList.remove("chosen", "target");
  if (isAdjusting) return showAdjustmentStep();
  if (!now.unit) {
    const rest = ownUnits().filter(unit => !now.orders[unit.at]);
    return say(ownUnits().length === 0 ? "You have nothing to order now." : rest.length > 0 ? "Tap one of your units: " + rest.map(unitName).join(", ") + "." : "Every unit has its order. Tap one to change it.", []);
  }
  now.areas[provinceOf(now.unit.at)].classList.add("chosen");
  const has = verb => now.unit.o.some(order => partsOf(order).verb === verb);
  const buttons = [];
  if (has("hold")) buttons.push(["Hold", () => orderUnit("hold")]);
  if (has("-")) buttons.push(["Move", () => setVerb("-"), now.verb === "-" || now.verb === null]);
  if (has("S")) buttons.push(["Support", () => setVerb("S"), now.verb === "S"]);
  if (has("C")) buttons.push(["Convoy", () => setVerb("C"), now.verb === "C"]);
  if (has("disband")) buttons.push(["Disband", () => orderUnit("disband")]);
  if (now.orders[now.unit.at]) buttons.push(["No order", () => { const unit = now.unit; begin(); setOrder(unit.at, ""); showStep(); }]);
  buttons.push(["Back", begin]);
  const name = unitName(now.unit);
  const orders = remaining().map(partsOf);
  let targets, text;
  if ((now.verb === "S" || now.verb === "C") && !now.about) {
    targets = orders.map(parts => placeIn(parts.about));
    text = name + (now.verb === "S" ? ": tap the unit that it supports." : ": tap the army that it convoys.");
  } else if (now.about) {
    targets = orders.map(parts => parts.to || placeIn(parts.about));
    text = name + ": tap where " + now.about + " goes" + (now.verb === "S" ? ", or the unit itself if it holds." : ".");
  } else {
    targets = orders.filter(parts => parts.to && !parts.about).map(parts => parts.to);
    text = name + (data.stage === "retreats" ? ": tap where it retreats to." : ": tap where it goes, or choose what it does.");
  }
  for (const place of targets) if (now.areas[provinceOf(place)]) now.areas[provinceOf(place)].classList.add("target");
  say(text, buttons);
}

function showAdjustmentStep() {
  const due = dueOf();
  if (due === 0) return say("Nothing is due from you.", []);
  for (const unit of data.powers[power.value].units) {
    const area = now.areas[provinceOf(placeIn(unit))];
    if (area) area.classList.add("target");
  }
  for (const unit of Object.values(now.orders)) now.areas[provinceOf(placeIn(unit))].classList.add("chosen");
  const open = slots().filter(slot => !now.orders[slot]).length;
  say(open === 0 ? "All is chosen. Tap a chosen place to take it back." : due > 0 ? "Tap where you build; " + open + " left." : "Tap the unit that you remove; " + open + " left.", []);
}

function adjustAt(place) {
  const here = slots().find(slot => now.orders[slot] && provinceOf(placeIn(now.orders[slot])) === place);
  if (here) { setOrder(here, ""); return showStep(); }
  const free = slots().find(slot => !now.orders[slot]);
  const units = data.powers[power.value].units.filter(unit => provinceOf(placeIn(unit)) === place);
  if (!free || units.length === 0) return;
  const take = unit => { setOrder(free, unit); showStep(); };
  if (units.length === 1) return take(units[0]);
  say("Which one?", units.map(unit => [unit, () => take(unit)]).concat([["Back", showStep]]));
}

function tap(place) {
  if (isAdjusting) return adjustAt(place);
  if (now.unit) {
    const orders = remaining();
    if ((now.verb === "S" || now.verb === "C") && !now.about) {
      const about = orders.map(order => partsOf(order).about).filter(unit => provinceOf(placeIn(unit)) === place);
      if (about.length > 0) {
        now.about = about[0];
        return showStep();
      }
    } else {
      const fitting = orders.filter(order => {
        const parts = partsOf(order);
        if (!now.about) return parts.to && !parts.about && provinceOf(parts.to) === place;
        return provinceOf(parts.to || placeIn(parts.about)) === place;
      });
      if (fitting.length > 0) return settle(fitting);
    }
  }
  const unit = ownUnits().find(own => provinceOf(own.at) === place);
  if (unit) {
    now.unit = unit;
    now.verb = now.about = null;
  }
  showStep();
}

function showPower() {
  restore();
  const list = element("given");
  list.replaceChildren();
  const add = (label, key, options) => {
    const item = newSelect(label, options, now.orders[key], order => { setOrder(key, order); begin(); });
    item.querySelector("select").dataset.key = key;
    list.appendChild(item);
  };
  if (isAdjusting) for (const slot of slots()) add((dueOf() > 0 ? "Build " : "Remove ") + slot, slot, data.powers[power.value].units);
  else for (const unit of ownUnits()) add(unitName(unit), unit.at, unit.o);
  update();
  begin();
}

async function copy() {
  const text = element("result");
  let isDone = false;
  try { await navigator.clipboard.writeText(text.value); isDone = true; } catch (error) {
    text.focus();
    text.select();
    isDone = document.execCommand("copy");
  }
  element("done").textContent = isDone ? "The text is on the clipboard." : "Select the text and copy it.";
}

document.documentElement.classList.add("js");
element("entry").hidden = false;
element("steps").hidden = false;
now.areas = layAreas(board, placeName, tap);
addZoom(document.querySelector(".map"));
power.addEventListener("change", showPower);
power.parentNode.hidden = power.options.length === 1;
element("copy").addEventListener("click", copy);
element("clear").addEventListener("click", () => { now.orders = {}; store(); update(); begin(); });
document.addEventListener("keydown", event => { if (event.key === "Escape") begin(); });
showPower();
