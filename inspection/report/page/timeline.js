// The run as one strip: how much each event changed. A pixel of a long run stands for several events.
'use strict';

// `isChosen`: which events stand out; `here`: the event that the view is about.
function timelineOf({ isChosen = () => true, here = null } = {}) {
  const canvas = element('canvas.strip', { role: 'slider', tabindex: 0, 'aria-label': 'Time line', 'aria-valuemin': 0, 'aria-valuemax': Math.max(0, model.events.length - 1) });
  const caption = element('p.strip-text', { 'aria-hidden': 'true' });
  const box = element('div.timeline', null, canvas, caption);
  let at = here?.at ?? 0, pointed = null;

  const describe = event => `${event.number}: ${event.text}${event.isSilent ? ' (silent)' : ''}`;
  const said = () => {
    canvas.setAttribute('aria-valuenow', at);
    canvas.setAttribute('aria-valuetext', `Event ${describe(model.events[at])}`);
    caption.textContent = pointed === null && !here && document.activeElement !== canvas
      ? 'Each bar is an event, as high as what it changed; a dot below is a closed gate. Choose one with the pointer or the arrow keys.' : describe(model.events[pointed ?? at]);
  };
  const eventAt = x => Math.max(0, Math.min(model.events.length - 1, Math.floor(x / canvas.clientWidth * model.events.length)));
  const amount = ({ tally }) => tally.changes + tally.changedControls + tally.publications;

  function draw() {
    const ratio = devicePixelRatio || 1, width = canvas.clientWidth, height = canvas.clientHeight, events = model.events;
    if (!width) return;
    canvas.width = width * ratio;
    canvas.height = height * ratio;
    const pen = canvas.getContext('2d'), style = getComputedStyle(canvas);
    const colour = name => style.getPropertyValue(name);
    pen.scale(ratio, ratio);
    const bars = Math.min(events.length, width), each = width / bars, gap = each > 4 ? 1.5 : 0, floor = height - 7;
    // The start outgrows everything else: heights are logarithms.
    const most = Math.log1p(Math.max(1, ...Array.from({ length: bars }, (_, bar) => most1(bar))));
    function most1(bar) {
      let value = 0;
      for (let number = Math.floor(bar * events.length / bars); number < Math.floor((bar + 1) * events.length / bars); ++number) value = Math.max(value, amount(events[number]));
      return value;
    }
    for (let bar = 0; bar < bars; ++bar) {
      let value = 0, isOn = false, isGated = false, busy = 0, all = 0;
      for (let number = Math.floor(bar * events.length / bars); number < Math.floor((bar + 1) * events.length / bars); ++number) {
        const event = events[number];
        value = Math.max(value, amount(event));
        ++all;
        if (!event.isSilent) ++busy;
        if (isChosen(event)) { isOn = true; isGated ||= event.tally.gates > 0; }
      }
      const tall = value ? Math.max(3, Math.log1p(value) / most * (floor - 3)) : 1.5;
      pen.fillStyle = colour(isOn ? value ? '--accent' : '--mute' : '--line');
      pen.globalAlpha = value ? .3 + .7 * busy / all : 1; // how many of its events have changed anything
      pen.fillRect(bar * each, floor - tall, Math.max(1, each - gap), tall);
      pen.globalAlpha = 1;
      if (isGated) { pen.fillStyle = colour('--warn'); pen.fillRect(bar * each, height - 4, Math.max(1, Math.min(each - gap, 10)), 3); }
    }
    for (const [mark, name] of [[pointed, '--soft'], [here || document.activeElement === canvas ? at : null, '--before']]) {
      if (mark === null) continue;
      const x = mark * width / events.length;
      pen.strokeStyle = colour(name);
      pen.lineWidth = 1.5;
      pen.strokeRect(x - .75, .75, Math.max(3, width / events.length - gap + 1.5), height - 1.5);
    }
  }

  const refresh = () => { said(); draw(); };
  canvas.addEventListener('pointermove', event => { pointed = eventAt(event.offsetX); canvas.style.cursor = 'pointer'; refresh(); });
  canvas.addEventListener('pointerleave', () => { pointed = null; refresh(); });
  canvas.addEventListener('click', event => { location.hash = address('event', model.events[eventAt(event.offsetX)].number); });
  canvas.addEventListener('focus', refresh);
  canvas.addEventListener('blur', refresh);
  canvas.addEventListener('keydown', event => {
    const to = { ArrowLeft: at - 1, ArrowRight: at + 1, PageUp: at - 100, PageDown: at + 100, Home: 0, End: model.events.length - 1 }[event.key];
    if (to !== undefined) { event.preventDefault(); at = Math.max(0, Math.min(model.events.length - 1, to)); refresh(); }
    else if (event.key === 'Enter') location.hash = address('event', model.events[at].number);
  });
  new ResizeObserver(refresh).observe(canvas);
  said();
  return { element: box, chosen(which) { isChosen = which; refresh(); } };
}
