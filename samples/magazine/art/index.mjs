// SPDX-License-Identifier: MIT
// The drawings of the magazine by the names that its HTML uses: "name" or "name argument".
import * as diagrams from './diagrams.mjs';
import { AUTUMN, along, at, svg } from './drawing.mjs';
import { leaf, SPECIES_NAMES } from './leaves.mjs';
import * as patterns from './patterns.mjs';
import * as places from './places.mjs';
import * as scenes from './scenes.mjs';

const SPECIES_NOTES = {
  hornbeam: ['Hornbeam', 'Carpinus betulus', 'Pleated like a fan, with double teeth. Our favourite, for reasons of spelling.'],
  beech: ['Beech', 'Fagus sylvatica', 'Smooth edge, a little wavy; silky hairs in spring.'],
  oak: ['Oak', 'Quercus robur', 'Round lobes and hardly a stalk. The acorn has the stalk instead.'],
  birch: ['Birch', 'Betula pendula', 'A small toothed triangle that trembles early and yellows first.'],
  willow: ['Willow', 'Salix viminalis', 'Long and narrow, silver below. Leave the rods to Ines.'],
  hawthorn: ['Hawthorn', 'Crataegus monogyna', 'Deeply lobed and no longer than a thumb. Mind the thorns.'],
  linden: ['Linden', 'Tilia cordata', 'A lopsided heart. In June you hear the tree before you see it.'],
  aspen: ['Aspen', 'Populus tremula', 'Nearly round on a flat stalk, so that it never keeps still.'],
  maple: ['Maple', 'Acer platanoides', 'Five pointed lobes, fine long tips. The reddest in a dry autumn.'],
  ginkgo: ['Ginkgo', 'Ginkgo biloba', 'A fan with no midrib, older than flowers. Drops its leaves in one day.'],
  rowan: ['Rowan', 'Sorbus aucuparia', 'Six pairs of leaflets and one to lead them. Berries for the thrushes.'],
  horseChestnut: ['Horse chestnut', 'Aesculus hippocastanum', 'Seven fingers from one point, widest near the tip.'],
};

function species() {
  return SPECIES_NAMES.map((name, index) => {
    const [english, latin, note] = SPECIES_NOTES[name];
    const drawing = svg(130, 150, at(65, 118, leaf(name, { fill: along(['#4f7a3a', ...AUTUMN], index / 11), vein: '#33331c' }), { scale: 1.02 }), 'xMidYMid meet');
    return `<figure>${drawing}<b>${index + 1}. ${english}</b><i lang="la">${latin}</i><p>${note}</p></figure>`;
  }).join('');
}

const DRAWINGS = {
  ...diagrams, ...patterns, ...places, ...scenes, species,
  rowOfMaples: () => diagrams.leafRow('maple'),
  printWall: () => patterns.leafPrint(8, 4),
};

/** The markup of every drawing that `names` asks for, by name. */
export function draw(names) {
  const drawing = (call) => {
    const [name, argument] = call.split(' ');
    if (!DRAWINGS[name]) throw new Error(`The magazine asks for a drawing that does not exist: ${call}`);
    return DRAWINGS[name](argument);
  };
  return Object.fromEntries([...new Set(names)].map((call) => [call, drawing(call)]));
}
