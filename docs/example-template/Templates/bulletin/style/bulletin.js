// SPDX-License-Identifier: MIT
// The properties of flashTemplate.xml are the members of bookConfig, which main.js has set.
const { bulletinText, bulletinPlace, bulletinColor, bulletinLarge } = bookConfig;
const bulletin = document.getElementById('bulletin');
bulletin.textContent = bulletinText;
bulletin.hidden = bulletinText === '';
bulletin.style.backgroundColor = bulletinColor;
bulletin.classList.toggle('large', /^(yes|true|show|enable)$/i.test(bulletinLarge));
document.body.classList.toggle('bottom', bulletinPlace === 'Bottom');
