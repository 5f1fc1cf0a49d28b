'use strict';
// What stands beside the instrument on a desk: controls from the server's table, and how things stand.

// The back light's brightness at each step, which the instrument's own pages count from 1.
const steps = ['1', '3', '5', '7'];

// What is not known is told as such.
const shown = [
  ['Scenario', (s) => s.scenario],
  ['Frequency', (s) => s.f && `${Math.abs(s.f).toFixed(3)} Hz`], // negative before it was measured
  ['Voltages set', (s) => s.volts && `${s.volts.split(',').slice(0, 3).map((v) => Number(v).toFixed(1)).join(' / ')} V`],
  ['Currents set', (s) => s.amps && `${s.amps.split(',').slice(0, 3).map((v) => Number(v).toFixed(2)).join(' / ')} A`],
  ['Speed', (s) => s.speed && `${s.speed} ×`],
  ['USB disk', (s) => s.usb === '' ? 'none' : s.usb],
  ['Link faults', (s) => (s.faults === '0' ? 'none' : s.faults)],
  ['Light now', (s) => lightIsKnown && steps.includes(s.light) && `${steps.indexOf(s.light) + 1} / ${steps.length}`],
];

function phaseOf(values, phase) {
  return (values || '').split(',')[phase === 'all' ? 0 : phase - 1];
}

// The values that controls take over from how things stand. The battery's gauge reads 2400 at 8.1 V.
const standing = {
  volts: { volts: (s, c) => phaseOf(s.volts, c.phase.value) },
  amps: { amps: (s, c) => phaseOf(s.amps, c.phase.value) },
  frequency: { hertz: (s) => s.hertz },
  scenario: { scenario: (s) => s.scenario },
  battery: { volts: (s) => s.gauge && s.gauge * 8.1 / 2400 },
  charger: { state: (s) => s.charged && (s.charged === '1' ? 'full' : (s.charging === '1' ? 'on' : 'off')) },
  cable: { state: (s) => s.cable && (s.cable === '0' ? 'down' : 'up') },
  speed: { factor: (s) => s.speed },
};

let built = false;
let lightIsKnown = false; // an instrument holds it at its step; the file of one that is gone tells nothing
let standingNow = {}; // the last report
let silent = ''; // who does not report
const panels = []; // of the controls that follow how things stand

function element(tag, properties, ...children) {
  const made = Object.assign(document.createElement(tag), properties);
  made.append(...children);
  return made;
}

function say(text, failed) {
  setText(document.getElementById('said'), text);
  document.getElementById('said').classList.toggle('failed', Boolean(failed));
}

// The line grows from nothing and with a long answer: what somebody is at stays in sight.
function answer(control, text, failed) {
  if (!control.live) say(''); // the same once more is said once more
  say(`${control.label}: ${text}`, failed);
  const line = document.getElementById('said').getBoundingClientRect();
  const at = document.activeElement;
  const box = at.getBoundingClientRect();
  if (at.closest('#controls') && box.top < line.bottom && box.bottom > line.top) at.scrollIntoView({ block: 'nearest' });
}

// The words of a command, as a person reads them.
function wordFor(choice, unit) {
  if (choice === 'all') return 'all phases';
  return unit ? unit.replace('%', choice.toUpperCase()) : choice;
}

function makeChoice(field) {
  const select = element('select', { name: field.name });
  select.append(...field.choices.map((choice) => element('option', { value: choice, textContent: wordFor(choice, field.unit) })));
  const name = element('span', { textContent: field.label, className: 'unseen' });
  return { input: select, label: element('label', {}, name, select) };
}

function makeSlider(field, alone) {
  const input = element('input', {
    type: 'range', name: field.name, min: field.least, max: field.most, step: field.step, value: field.value,
  });
  const digits = (String(field.step).split('.')[1] || '').length;
  const amount = element('span', { className: 'amount', ariaHidden: 'true' }); // the slider itself says it aloud
  input.show = (isKnown = true) => {
    const text = isKnown ? `${Number(input.value).toFixed(digits)} ${field.unit}`.trim() : 'unknown';
    setText(amount, text);
    input.setAttribute('aria-valuetext', text);
  };
  input.addEventListener('input', () => input.show());
  input.show();
  const name = element('span', { textContent: field.label, className: alone ? 'unseen' : '' });
  return { input, label: element('label', { className: alone ? 'range alone' : 'range' }, name, input, amount) };
}

// One request at a time for each control; of what moved meanwhile the last value follows.
function sender(control, inputs) {
  let busy = false;
  let again = false;
  return async function send() {
    again = busy;
    if (busy) return;
    busy = true;
    const wish = { control: control.id };
    for (const input of inputs) wish[input.name] = input.type === 'range' ? Number(input.value) : input.value;
    try {
      await post('control', wish);
      answer(control, 'done');
    } catch (error) {
      answer(control, error.message, true);
    }
    busy = false;
    if (again) send();
  };
}

// On the left what is done and to which phases, on the right how much of it.
function makeControl(control) {
  const sliders = control.fields.filter((field) => !field.choices);
  const fields = control.fields.map((field) => (field.choices ? makeChoice(field) : makeSlider(field, control.live)));
  const inputs = fields.map((field) => field.input);
  const send = sender(control, inputs);
  const panel = { id: control.id, inputs: Object.fromEntries(inputs.map((input) => [input.name, input])) };
  const what = element('div', { className: 'what' });
  const values = element('div', { className: 'values' });
  panel.row = element('div', { className: 'control' }, what, values);
  panel.row.dataset.control = control.id;
  panel.row.setAttribute('role', 'group');
  panel.row.setAttribute('aria-label', control.label);
  if (control.live) {
    what.append(element('span', { className: 'name', textContent: control.label }));
    for (const input of inputs) {
      if (input.type === 'range') input.addEventListener('input', send);
      else if (sliders.length === 0) input.addEventListener('change', send);
      else input.addEventListener('change', () => followOne(panel)); // says what the slider is for; the slider sends
    }
  } else {
    const button = element('button', { type: 'button', textContent: control.label });
    button.addEventListener('click', send);
    what.append(button);
  }
  for (const { input, label } of fields) (input.type === 'range' || sliders.length === 0 ? values : what).append(label);
  panels.push(panel);
  return panel.row;
}

async function buildControls() {
  built = true;
  const controls = await (await fetch('controls', { signal: AbortSignal.timeout(answerTime) })).json();
  built = controls.length > 0;
  if (!built) return;
  const groups = new Map();
  for (const control of controls) {
    if (!groups.has(control.group)) groups.set(control.group, element('fieldset', {}, element('legend', { textContent: control.group })));
    groups.get(control.group).append(makeControl(control));
  }
  document.getElementById('controls').replaceChildren(...groups.values());
  panels.forEach(followOne); // the report that came meanwhile may be the last for long: the same is not sent again
}

function followOne({ id, inputs }) {
  for (const [name, valueOf] of Object.entries(standing[id] || {})) {
    const value = valueOf(standingNow, inputs);
    const isKnown = value !== undefined && value !== '';
    if (isKnown || !inputs[name].show) inputs[name].value = isKnown ? value : ''; // a choice of nothing; a slider stands somewhere
    if (inputs[name].show) inputs[name].show(isKnown);
  }
}

function showStanding(state) {
  standingNow = state;
  document.getElementById('standing').replaceChildren(...shown.map(([name, text]) => element('div', {},
    element('dt', { textContent: name }), element('dd', { textContent: text(state) || 'unknown' }))));
  document.getElementById('standing').dataset.there = Boolean(state.there);
  // A control that somebody is at stays as it is.
  for (const panel of panels) if (!panel.row.contains(document.activeElement)) followOne(panel);
}

function showLight(isKnown) {
  lightIsKnown = isKnown;
  showStanding(standingNow);
}

// Nobody tells any more how things stand.
function forgetSupply(why) {
  if (document.getElementById('supply').hidden) return; // it never was told
  showStanding({});
  silent = why;
  say(why, true);
}

function showSupply(state) {
  showStanding(state);
  document.getElementById('supply').hidden = false;
  if (!built) buildControls().catch(() => { built = false; });
  if (document.getElementById('said').textContent === silent) say('');
  silent = state.there ? '' : 'The processor stand-in does not answer';
  if (silent) say(silent, true);
  document.getElementById('screen').dataset.light = state.light; // pictures are as bright as ever
}
