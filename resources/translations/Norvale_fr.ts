<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>Suppression de «&#xa0;%1&#xa0;»... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>Aucune extension de navigateur trouvée</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensions de navigateur</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Rechercher des extensions...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Actualiser</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Veuillez patienter...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Analyse des extensions de navigateur...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Analyse en cours...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>%1 sur %2 extensions</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>%1 extensions au total</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Supprimer la sélection (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Supprimer la sélection</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>Navigateur en cours d&apos;exécution</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Ces navigateurs ont encore des processus actifs en arrière-plan&#xa0;:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Cliquez sur «&#xa0;Forcer l&apos;arrêt&#xa0;» pour arrêter tous les processus concernés et poursuivre la suppression, ou fermez-les vous-même puis cliquez sur «&#xa0;Réessayer&#xa0;».</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; a encore des processus actifs en arrière-plan.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Même après la fermeture de la fenêtre, des processus du navigateur peuvent rester actifs en arrière-plan. Cliquez sur «&#xa0;Forcer l&apos;arrêt&#xa0;» ou fermez-les vous-même puis cliquez sur «&#xa0;Réessayer&#xa0;».</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Forcer l&apos;arrêt et supprimer</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Arrêt incomplet&#xa0;: %1&lt;br&gt;Terminez-le manuellement dans le Gestionnaire des tâches, puis réessayez.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>Impossible d&apos;arrêter complètement %1. Terminez tous les processus %2 dans le Gestionnaire des tâches, puis réessayez.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>Impossible d&apos;arrêter le processus</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Supprimer l&apos;extension</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>Supprimer &lt;b&gt;%1&lt;/b&gt;&#xa0;?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;La page de gestion des extensions de %2 va s&apos;ouvrir et l&apos;ID de l&apos;extension sera copié&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Suppression de l&apos;extension...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ «&#xa0;%1&#xa0;» supprimée</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Échec de la suppression automatique</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Impossible de supprimer automatiquement &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>La page de gestion des extensions de %1 est ouverte.&lt;br&gt;L&apos;ID de l&apos;extension a été copié dans le Presse-papiers&#xa0;:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Après l&apos;avoir supprimée manuellement, cliquez sur &lt;b&gt;Actualiser&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Suppression groupée</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>Supprimer les &lt;b&gt;%1&lt;/b&gt; extensions sélectionnées&#xa0;?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>Suppression de %1 extension(s)...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Suppression terminée</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; extension(s) supprimée(s).</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>La liste va s&apos;actualiser automatiquement.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Suppression partielle</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Réussite&#xa0;: &lt;b&gt;%1&lt;/b&gt;, échec&#xa0;: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Échecs (à supprimer manuellement dans le navigateur)&#xa0;:&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 extensions</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Nettoyage de disque</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Recherche les fichiers inutiles et libère de l&apos;espace disque en toute sécurité</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Analyse en cours…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Veuillez patienter</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Relancer l&apos;analyse</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Tout sélectionner</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Nettoyer la sélection</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Analyse terminée</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Nettoyage terminé, &lt;b&gt;%1&lt;/b&gt; libérés</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Tout désélectionner</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; catégories sélectionnées  ·  env. &lt;b&gt;%2&lt;/b&gt; libérables</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>%1 catégories à nettoyer trouvées, %2 au total</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 catégories sélectionnées  ·  env. %2 libérables</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Analyse en cours…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Fichiers temporaires Windows</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Cache de Windows Update</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Cache de Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Cache de Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Cache de Mozilla Firefox</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>Fichiers journaux système</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Cache Prefetch</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Miniatures</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Fichiers d&apos;image mémoire</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Installations précédentes de Windows</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Nettoyage de disque</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Nettoyer les fichiers inutiles</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Désinstaller des programmes</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Gérer les programmes installés</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Applications Windows</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>Gérer les applications UWP</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensions de navigateur</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Gérer les extensions</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Aperçu du système</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● En direct</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Lecture des informations système…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Mises à jour installées</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Performances en temps réel</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Actions rapides</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 cœurs</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Actif depuis %1 h %2 min</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Actif depuis %1 j %2 h</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Suppression forcée</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Supprimer la sélection</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Suppression forcée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Recherche des éléments à supprimer...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Vérifiez chaque élément avec soin. Les éléments à risque élevé sont décochés par défaut.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Rien à supprimer.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Suppression des éléments sélectionnés...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Suppression forcée terminée</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>L&apos;application et ses fichiers associés ont été supprimés.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>L&apos;emplacement d&apos;installation %1 est un dossier système ou utilisateur&#xa0;: il n&apos;est pas modifié.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Rien à supprimer</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; éléments trouvés  ·  &lt;b&gt;%2&lt;/b&gt; récupérables</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Suppression forcée terminée  ·  &lt;b&gt;%1&lt;/b&gt; libérés</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Terminé ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Installation</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Données d&apos;application</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registre</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Raccourci de démarrage</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Tâche planifiée</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Risque élevé</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Arrêt des processus...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Analyse du dossier d&apos;installation...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Analyse des données d&apos;application...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Analyse du Registre...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Analyse des éléments de démarrage...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Analyse des tâches planifiées...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Analyse des services...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Dossier d&apos;installation&#xa0;: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>Données d&apos;application&#xa0;: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Entrée de désinstallation du Registre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Démarrage (Registre)&#xa0;: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Raccourci de démarrage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Tâche planifiée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Service Windows&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Suppression&#xa0;: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Terminé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossible de charger les liens de la page.

Contactez le support technique ou réinstallez le logiciel.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossible d&apos;ouvrir le navigateur</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossible d&apos;ouvrir le navigateur par défaut.

Copiez le lien et ouvrez-le manuellement&#xa0;:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Erreur de configuration</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>À propos de Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Langue modifiée</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Nouvelle langue&#xa0;: %1
L&apos;application va redémarrer.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Échec du redémarrage</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Veuillez redémarrer l&apos;application manuellement.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Nettoyer les résidus</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Nettoyer les résidus</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Recherche de fichiers résiduels...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Initialisation...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  Aucun fichier résiduel trouvé&#xa0;!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analyse en cours...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; éléments trouvés  ·  &lt;b&gt;%2&lt;/b&gt; récupérables</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>Aucun fichier résiduel trouvé</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Nettoyer la sélection</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Nettoyage...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Nettoyage... %1&#xa0;%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Nettoyé — %1 libérés</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Terminé ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Sûr</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>À confirmer</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Données d&apos;application orphelines</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Fichiers de cache</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Fichiers journaux</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Rapports d&apos;incident</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Fichiers temporaires</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Aperçu du système</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Nettoyage de disque</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Applications Windows</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensions de navigateur</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  À propos de Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Langue</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Aide</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Assistance</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Niveau inférieur</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Désinstaller des programmes</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Gérer les programmes installés · Désinstallation groupée · Nettoyage des résidus du Registre</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> programmes</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> inutilisés</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Rechercher un programme installé...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Inutilisés</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Actualiser</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Par taille</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Par date</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Par nom</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Installé le</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Cliquez sur Actualiser pour analyser les programmes installés.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Analyse des programmes installés...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Lecture des entrées du Registre, veuillez patienter...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Nettoyer les résidus</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Désinstaller la sélection</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analyse en cours...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; programmes</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; sélectionnés  ·  &lt;b&gt;%2&lt;/b&gt; à libérer</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Confirmer la désinstallation</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>Désinstaller «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>Aucun programme de désinstallation</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; ne dispose pas de son propre programme de désinstallation.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Utilisez &lt;b&gt;Suppression forcée&lt;/b&gt; pour supprimer le dossier d&apos;installation, les entrées du Registre et les fichiers associés.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Cette action est irréversible.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Suppression forcée…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Désinstallation&#xa0;: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Désinstallé&#xa0;: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Nettoyer les résidus →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Échec de la désinstallation&#xa0;: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Échec de la désinstallation</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>Le programme de désinstallation de &lt;b&gt;%1&lt;/b&gt; n&apos;a pas pu le désinstaller.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>La &lt;b&gt;Suppression forcée&lt;/b&gt; va&#xa0;:&lt;br&gt;• arrêter tous les processus en cours&lt;br&gt;• supprimer le dossier d&apos;installation&lt;br&gt;• supprimer les entrées du Registre&lt;br&gt;• nettoyer les éléments de démarrage &amp;amp; les services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Cette action est irréversible. Vérifiez les éléments avec soin avant de confirmer.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>Informations d&apos;installation introuvables pour &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Supprimez-le manuellement.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Désinstallation groupée</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>Désinstaller les %1 programmes sélectionnés&#xa0;?
Cette action est irréversible.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Échec de la suppression (droits d&apos;administrateur peut-être requis)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>Application protégée par le système&#xa0;: elle a été supprimée pour l&apos;utilisateur actuel, mais ses composants système peuvent être restaurés au redémarrage.
Pour la supprimer complètement, exécutez Norvale en tant qu&apos;administrateur.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Applications Windows</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Rechercher une application...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Actualiser</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Date d&apos;installation</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>Suppression de l&apos;application...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Veuillez patienter...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Analyse en cours...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Analyse des applications Windows...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Analyse des applications Windows... %1 trouvée(s)</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>%1 sur %2 applications</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>%1 applications au total</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Supprimer la sélection</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Supprimer la sélection (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 application(s) sélectionnée(s)</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Impossible de désinstaller Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge est un composant système de Windows et ne peut pas être désinstallé de cette façon.

Pour changer de navigateur par défaut, accédez à
«&#xa0;Paramètres → Applications → Applications par défaut&#xa0;».</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>Supprimer l&apos;application</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Suppression groupée</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>Supprimer les %1 applications sélectionnées&#xa0;?
Cette action est irréversible.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>Suppression de %1 application(s)...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 applications</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>Suppression de «&#xa0;%1&#xa0;»... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 application(s) supprimée(s), actualisation...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Échec de la suppression</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>Aucune application n&apos;a pu être supprimée.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Suppression partielle</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Réussite&#xa0;: &lt;b&gt;%1&lt;/b&gt;, échec&#xa0;: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Détails des échecs&#xa0;:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Les applications préinstallées (comme Edge ou Photos) peuvent être protégées et impossibles à supprimer de cette façon.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
