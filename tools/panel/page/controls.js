'use strict';
// What stands beside the instrument on a desk: controls from the server's table, and how things stand.

const shown = [
  ['scenario', 'Scenario', (s) => s.scenario],
  ['f', 'Frequency', (s) => s.f && `${Number(s.f).toFixed(3)} Hz`],
  ['volts', 'Voltages', (s) => s.volts && `${s.volts.split(',').slice(0, 3).map((v) => Number(v).toFixed(1)).join(' / ')} V`],
  ['amps', 'Currents', (s) => s.amps && `${s.amps.split(',').slice(0, 3).map((v) => Number(v).toFixed(2)).join(' / ')} A`],
  ['usb', 'USB disk', (s) => s.usb || 'none'],
  ['light', 'Light', (s) => s.light],
  ['faults', 'Faults', (s) => s.faults],
  ['speed', 'Speed', (s) => s.speed],
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
  charger: { state: (s) => (s.charged === '1' ? 'full' : (s.charging === '1' ? 'on' : 'off')) },
  cable: { state: (s) => (s.cable === '0' ? 'down' : 'up') },
  speed: { factor: (s) => s.speed },
};

let built = false;
const panels = []; // of the controls that follow how things stand

function element(tag, properties, ...children) {
  const made = Object.assign(document.createElement(tag), properties);
  made.append(...children);
  return made;
}

function answer(text, failed) {
  const said = document.getElementById('said');
  said.textContent = text;
  said.classList.toggle('failed', Boolean(failed));
}

function makeField(control, field) {
  if (field.choices) {
    const select = element('select', { name: field.name });
    select.append(...field.choices.map((word) => element('option', { textContent: word })));
    const alone = control.fields.length === 1;
    const name = element('span', { textContent: field.label, className: alone ? 'unseen' : '' });
    return { input: select, label: element('label', {}, name, select) };
  }
  const input = element('input', {
    type: 'range', name: field.name, min: field.least, max: field.most, step: field.step, value: field.value,
  });
  const output = element('output', {});
  input.show = () => { output.textContent = `${input.value} ${field.unit}`; input.setAttribute('aria-valuetext', output.textContent); };
  input.addEventListener('input', input.show);
  input.show();
  const alone = control.fields.length === 1; // then the control's own name stands before it
  const name = element('span', { textContent: field.label, className: alone ? 'unseen' : '' });
  const label = element('label', { className: 'wide' }, name, input, output);
  return { input, label };
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
      answer(`${control.label}: done`);
    } catch (error) {
      answer(`${control.label}: ${error.message}`, true);
    }
    busy = false;
    if (again) send();
  };
}

function makeControl(control) {
  const fields = control.fields.map((field) => makeField(control, field));
  const inputs = fields.map((field) => field.input);
  const send = sender(control, inputs);
  const row = element('div', { className: 'control' });
  row.dataset.control = control.id;
  if (control.live) {
    row.setAttribute('role', 'group');
    row.setAttribute('aria-label', control.label);
    row.append(element('span', { className: 'name', textContent: control.label }));
    for (const input of inputs) {
      const alone = inputs.length === 1;
      // With a slider beside it a choice says what the slider is for; the slider sends.
      if (input.type === 'range' || alone) input.addEventListener(input.type === 'range' ? 'input' : 'change', send);
    }
  } else {
    const button = element('button', { type: 'button', textContent: control.label });
    button.addEventListener('click', send);
    row.append(button);
  }
  panels.push({ id: control.id, row, inputs: Object.fromEntries(inputs.map((input) => [input.name, input])) });
  row.append(element('div', { className: 'fields' }, ...fields.map((field) => field.label)));
  return row;
}

async function buildControls() {
  built = true;
  const controls = await (await fetch('controls')).json();
  built = controls.length > 0;
  if (!built) return;
  const groups = new Map();
  for (const control of controls) {
    if (!groups.has(control.group)) groups.set(control.group, element('fieldset', {}, element('legend', { textContent: control.group })));
    groups.get(control.group).append(makeControl(control));
  }
  document.getElementById('controls').replaceChildren(...groups.values());
}

// A control that somebody is at stays as it is.
function follow(state) {
  for (const { id, row, inputs } of panels) {
    if (row.contains(document.activeElement)) continue;
    for (const [name, valueOf] of Object.entries(standing[id] || {})) {
      const value = valueOf(state, inputs);
      if (value === undefined || value === '') continue;
      inputs[name].value = value;
      if (inputs[name].show) inputs[name].show();
    }
  }
}

function showSupply(state) {
  document.getElementById('supply').hidden = false;
  if (!built) buildControls().catch(() => { built = false; });
  document.getElementById('standing').replaceChildren(...shown.map(([, name, text]) => element('div', {},
    element('dt', { textContent: name }), element('dd', { textContent: text(state) || '–' }))));
  document.getElementById('standing').dataset.there = state.there;
  if (!state.there) answer('The processor stand-in does not answer', true);
  document.getElementById('screen').dataset.light = state.light; // pictures are as bright as ever
  follow(state);
}
