"use strict";
/* What both pages do with the map. No text of the game is ever taken for markup: all of it is set as text. */
const data = JSON.parse(document.getElementById("data").textContent);
const svgSpace = "http://www.w3.org/2000/svg";

function svgElement(name, attributes) {
  const element = document.createElementNS(svgSpace, name);
  for (const key of Object.keys(attributes)) element.setAttribute(key, attributes[key]);
  return element;
}

/* The province of a coast: "Stp.n" lies in "Stp". */
function provinceOf(place) {
  return place.split(".")[0];
}

function placeName(place) {
  const known = data.places[place];
  return known && known.n ? known.n : place;
}

/* Lays a shape that can be pointed at over each province of a map. One of them can be reached by the
   tabulator key, the others from there by the arrow keys. */
function layAreas(board, describe, choose) {
  const areas = {};
  const group = svgElement("g", {});
  const names = Object.keys(data.places).filter(place => provinceOf(place) === place);
  for (const place of names) {
    const known = data.places[place];
    const area = known.d ? svgElement("path", {d: known.d})
      : svgElement("circle", {cx: known.u[0], cy: known.u[1], r: 16});
    area.setAttribute("class", "area");
    area.setAttribute("role", "button");
    area.setAttribute("tabindex", "-1");
    area.dataset.place = place;
    area.setAttribute("aria-label", describe(place));
    area.addEventListener("click", () => choose(place));
    area.addEventListener("keydown", event => {
      if (event.key === "Enter" || event.key === " ") {
        event.preventDefault();
        choose(place);
      } else {
        const next = neighbourTowards(names, place, event.key);
        if (!next) return;
        event.preventDefault();
        event.stopPropagation();
        areas[place].setAttribute("tabindex", "-1");
        areas[next].setAttribute("tabindex", "0");
        areas[next].focus();
      }
    });
    areas[place] = area;
    group.appendChild(area);
  }
  if (names.length > 0) areas[names[0]].setAttribute("tabindex", "0");
  board.appendChild(group);
  return areas;
}

/* The nearest place in the direction of an arrow key; the nearer to straight ahead the better. */
function neighbourTowards(names, place, key) {
  const direction = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1]}[key];
  if (!direction) return null;
  const from = data.places[place].u;
  let best = null;
  let least = Infinity;
  for (const name of names) {
    const to = data.places[name].u;
    const ahead = (to[0] - from[0]) * direction[0] + (to[1] - from[1]) * direction[1];
    const beside = Math.abs((to[0] - from[0]) * direction[1]) + Math.abs((to[1] - from[1]) * direction[0]);
    const cost = ahead + 2.2 * beside;
    if (ahead > 0 && cost < least) {
      least = cost;
      best = name;
    }
  }
  return best;
}

/* A button that makes a map large enough for a finger; the map then scrolls in its frame. */
function addZoom(figure) {
  const pan = figure.querySelector(".pan");
  const button = document.createElement("button");
  button.type = "button";
  button.className = "zoom";
  button.textContent = "Zoom in";
  button.addEventListener("click", () => {
    const isLarge = pan.classList.toggle("large");
    button.textContent = isLarge ? "Zoom out" : "Zoom in";
    pan.scrollLeft = (pan.scrollWidth - pan.clientWidth) * 0.4;
    pan.scrollTop = (pan.scrollHeight - pan.clientHeight) * 0.5;
  });
  figure.insertBefore(button, figure.firstChild);
}
